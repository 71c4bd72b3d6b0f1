#include "debugger/TraceView.h"

#include <algorithm>

#include "debugger/TraceLanguage.h"
#include "text/LangText.h"
#include "types/TextKey.h"
#include "types/Utf8.h"

namespace ZAFHartDebugger {

using ZAFHartTypes::FoldCase;

void TraceView::Choose(Operation& operation, const Operation* caller) const {
  operation.isChosen =
      settings_.filter.empty() || (caller && caller->isChosen) ||
      FoldCase(operation.Title()).find(FoldCase(settings_.filter)) != std::string::npos;
}

bool TraceView::Shows(OperationStack& stack) const {
  const Operation* const innermost = stack.Innermost();
  return innermost ? innermost->isChosen : settings_.filter.empty();
}

void TraceView::Announce(OperationStack& stack, bool all) {
  for (Operation& operation : stack) {
    if (operation.isShown || !operation.isStarted || (!all && !IsInTree(operation))) continue;
    operation.isShown = true;
    Write({}, operation.level, Heading(operation, true));
  }
}

void TraceView::End(const Operation& operation, OperationStack& callers) {
  if (!operation.isShown && !IsInTree(operation)) return;
  Announce(callers);
  std::string line = Heading(operation, !operation.isShown);
  for (const std::string& result : operation.results) line += "  " + Plain(result);
  line += "  " + (operation.exit.empty() ? Paint(Colour::Error, "failed")
                                         : Paint(Colour::Faint, operation.exit));
  Write(DurationText(operation.duration), operation.level, line);
}

std::string TraceView::Heading(const Operation& operation, bool withInputs) const {
  std::string heading = Paint(Colour::Operation, Plain(operation.name));
  if (!withInputs) return heading;
  for (const std::string& input : operation.inputs) heading += "  " + Plain(input);
  return heading;
}

void TraceView::Text(OperationStack& stack, Colour colour, std::string_view text) {
  Announce(stack);
  while (!text.empty()) {
    const auto end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (!line.empty()) Write({}, LevelBelow(stack), Paint(colour, Plain(line)));
    if (end == std::string_view::npos) return;
    text.remove_prefix(end + 1);
  }
}

void TraceView::Timed(OperationStack& stack, Time duration, std::string_view line) {
  Announce(stack);
  Write(DurationText(duration), LevelBelow(stack), line);
}

void TraceView::Line(Colour colour, std::string_view line) {
  terminal_.Write(Paint(colour, Plain(line)));
}

std::string TraceView::Say(const char* text) const {
  return ZAFHartLib::LangText(text, language_);
}

std::string TraceView::Plain(std::string_view text) const {
  return ZAFHartTypes::utf8::OneLine(InLanguage(text, language_));
}

std::int32_t TraceView::LevelBelow(OperationStack& stack) {
  std::int32_t level = 0;
  for (const Operation& operation : stack) {
    if (operation.isShown) level = operation.level;
  }
  return level + 1;
}

void TraceView::Write(std::string_view time, std::int32_t level, std::string_view line) {
  const auto indent = static_cast<std::size_t>(std::max(level - 1, 0)) * 2;
  const std::string column =
      time.empty() ? std::string(kDurationWidth, ' ') : Paint(Colour::Faint, time);
  terminal_.Write(column + "  " + std::string(indent, ' ') + std::string(line));
}

}  // namespace ZAFHartDebugger
