#pragma once

#include <string>
#include <string_view>

#include "debugger/Colour.h"
#include "debugger/OperationStack.h"
#include "debugger/Settings.h"
#include "debugger/Terminal.h"

namespace ZAFHartDebugger {

// Writes what happens as a tree: durations in the first column, operations indented by their level.
// An operation in which nothing else is shown takes one line, others have one at their beginning
// and one at their end.
class TraceView {
 public:
  // All outlive it.
  TraceView(Terminal& terminal, const Settings& settings, const std::string& language)
      : terminal_(terminal), settings_(settings), language_(language) {}

  // Its inputs are complete: decides whether it passes the filter.
  void Choose(Operation& operation, const Operation* caller) const;
  // What happens now in the innermost operation is shown.
  bool Shows(OperationStack& stack) const;
  // Opening lines of the running operations that have none yet; `all`: also of those too deep.
  void Announce(OperationStack& stack, bool all = false);
  // The operation has a line of its own in the tree.
  bool IsInTree(const Operation& operation) const {
    return operation.isChosen && operation.level <= settings_.depth;
  }
  // The operation has ended, and `callers` are still running.
  void End(const Operation& operation, OperationStack& callers);
  // Lines of a text below the innermost operation.
  void Text(OperationStack& stack, Colour colour, std::string_view text);
  // A line below the innermost operation with a duration, coloured already.
  void Timed(OperationStack& stack, Time duration, std::string_view line);
  // A line outside of the tree.
  void Line(Colour colour, std::string_view line);

  // A part of a line as it can be shown: in one language, without control characters.
  std::string Plain(std::string_view text) const;
  // A multilingual text in the language.
  std::string Say(const char* text) const;
  std::string Paint(Colour colour, std::string_view text) const {
    return Painted(colour, text, terminal_.ShowsColours());
  }

 private:
  std::string Heading(const Operation& operation, bool withInputs) const;
  void Write(std::string_view time, std::int32_t level, std::string_view line);
  static std::int32_t LevelBelow(OperationStack& stack);

  Terminal& terminal_;
  const Settings& settings_;
  const std::string& language_;
};

}  // namespace ZAFHartDebugger
