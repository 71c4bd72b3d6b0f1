#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "debugger/Duration.h"

namespace ZAFHartDebugger {

// An operation of the kernel, as its trace lines tell it.
struct Operation {
  std::int32_t level = 0;            // 1 is the outermost
  std::string name;                  // "ReadVariable"
  std::vector<std::string> inputs;   // "> Def: VARIABLE tag"
  std::vector<std::string> results;  // "<Result: VARIABLE tag Value=…"
  std::string exit;                  // "Exit(3)"; "" when it ended by a failure
  Time start{};
  Time duration{};
  bool isStarted = false;  // its inputs are complete
  bool isChosen = false;   // by the filter, or within one that is
  bool isShown = false;    // its opening line has been written

  // Name and inputs on one line.
  std::string Title() const;
  // One of the objects among its inputs has such a name; commands have their number, "#13", too.
  bool HasObject(std::string_view pattern) const;
};

// The operations that are running, outermost first. Levels may be missing.
class OperationStack {
 public:
  // Opens a level; what is still open there has to be taken before.
  Operation& Open(std::int32_t level, std::string_view text, Time now);
  // Nothing when the level is not open.
  Operation* At(std::int32_t level);
  Operation* Innermost() { return operations_.empty() ? nullptr : &operations_.back(); }
  // Takes the innermost operation off. REQUIRES: there is one.
  Operation TakeInnermost();

  // Their names: "ReadVariable/ExecuteCommand".
  std::string Path() const;
  auto begin() { return operations_.begin(); }
  auto end() { return operations_.end(); }

 private:
  std::vector<Operation> operations_;
};

}  // namespace ZAFHartDebugger
