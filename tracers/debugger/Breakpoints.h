#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "debugger/OperationStack.h"

namespace ZAFHartDebugger {

// Where a debugger stops.
struct Breakpoint {
  enum class Kind { Operation, Error, Change };
  Kind kind = Kind::Operation;
  std::string text;       // as it was given
  std::string operation;  // pattern of the operation's name
  std::string object;     // pattern of an object's name; "" for any operation
  int hits = 0;

  // "OPERATION", "OPERATION:OBJECT" or ":OBJECT" (with * and ?), "error", "changed" (any watched
  // object) or "changed:OBJECT". Raises InvalidArgument for an empty text.
  static Breakpoint Parse(std::string_view text);
  bool StopsAt(const Operation& started) const;
};

class Breakpoints {
 public:
  void Add(Breakpoint breakpoint) { list_.push_back(std::move(breakpoint)); }
  // By position from 1; false when there is none.
  bool Remove(std::size_t position);
  void Clear() { list_.clear(); }
  const std::vector<Breakpoint>& All() const { return list_; }

  // Each counts a hit and answers what stops there, if something does.
  const Breakpoint* Starting(const Operation& operation);
  const Breakpoint* OnError();
  const Breakpoint* Changing(std::string_view object);
  // One of them stops at operations.
  bool NeedsOperations() const;

 private:
  template <typename Test>
  const Breakpoint* Hit(Test&& test);

  std::vector<Breakpoint> list_;
};

}  // namespace ZAFHartDebugger
