#include "debugger/Debugger.h"

#include <algorithm>
#include <limits>

#include "debugger/Commands.h"
#include "debugger/Summary.h"
#include "debugger/Texts.h"
#include "types/NamePattern.h"
#include "types/TextKey.h"

namespace ZAFHartDebugger {

namespace {

constexpr std::int32_t kAllLevels = std::numeric_limits<std::int32_t>::max();

using ZAFHartTypes::SameKey;

}  // namespace

Debugger::Debugger(std::shared_ptr<Terminal> terminal, Settings settings, TimeSource now)
    : terminal_(std::move(terminal)),
      now_(std::move(now)),
      settings_(std::move(settings)),
      language_(settings_.language.empty() ? "en" : settings_.language),
      view_(*terminal_, settings_, language_) {}

void Debugger::Break(std::string_view place) {
  Breakpoint breakpoint = Breakpoint::Parse(place);
  const bool isOfOne = breakpoint.kind == Breakpoint::Kind::Change && !breakpoint.object.empty() &&
                       !ZAFHartTypes::IsPattern(breakpoint.object);
  if (isOfOne) Watch(breakpoint.object);
  ++version_;
  breakpoints_.Add(std::move(breakpoint));
}

bool Debugger::RemoveBreak(std::size_t position) {
  ++version_;
  return breakpoints_.Remove(position);
}

void Debugger::Go(Step step, std::int32_t level) {
  ++version_;
  stepper_.Go(step, level);
}

void Debugger::Watch(std::string_view name) {
  ++version_;
  const auto isSame = [&](const std::string& watched) { return SameKey(watched, name); };
  if (std::ranges::none_of(watched_, isSame)) watched_.emplace_back(name);
}

bool Debugger::Unwatch(std::string_view name) {
  ++version_;
  return std::erase_if(watched_,
                       [&](const std::string& watched) { return SameKey(watched, name); }) > 0;
}

void Debugger::RunScript(std::string_view script) {
  while (!script.empty()) {
    const auto end = script.find(';');
    RunCommand(*this, {}, script.substr(0, end));
    if (end == std::string_view::npos) return;
    script.remove_prefix(end + 1);
  }
}

std::int32_t Debugger::NeededDepth() const {
  const bool seesAll = stepper_.IsStepping() || breakpoints_.NeedsOperations() || !watched_.empty();
  return seesAll ? kAllLevels : std::max(settings_.depth, settings_.top > 0 ? 1 : 0);
}

void Debugger::Count(const Operation& operation) {
  if (operation.isChosen && operation.level <= std::max(settings_.depth, 1))
    statistics_.AddOperation(operation, settings_.top);
}

// Level 1 tells what was computed, for the summary.
std::int32_t Debugger::NeededLevel() const {
  return std::max(settings_.level, settings_.top > 0 ? 1 : 0);
}

void Debugger::SetDefaultLanguage(const std::string& language) {
  language_ = settings_.language.empty() ? language : settings_.language;
}

void Debugger::Ask(const StopPlace& place, std::string_view reason) {
  if (isAsking_) return;
  isAsking_ = true;
  const std::shared_ptr<void> asked(nullptr, [this](void*) { isAsking_ = false; });
  Go(Step::None, 0);
  view_.Announce(*place.operations, true);
  view_.Line(Colour::Notice, view_.Say(texts::kStopped) + ": " + std::string(reason));
  while (true) {
    const auto line = terminal_->ReadLine("(hart) ");
    if (!line) return RunFreely();
    if (!line->empty()) lastCommand_ = *line;
    if (RunCommand(*this, place, lastCommand_) == Outcome::GoesOn) return;
  }
}

void Debugger::RunFreely() {
  breakpoints_.Clear();
  Go(Step::None, 0);
}

void Debugger::Quit(const StopPlace& place) {
  RunFreely();
  if (onQuit_) onQuit_(place);
}

void Debugger::End() {
  if (hasEnded_) return;
  hasEnded_ = true;
  TellUnreached();
  if (settings_.top == 0) return;
  for (const std::string& line : SummaryLines(statistics_, settings_.top, language_))
    terminal_->Write(line);
}

void Debugger::TellUnreached() {
  for (const Breakpoint& breakpoint : breakpoints_.All()) {
    if (breakpoint.hits > 0) continue;
    view_.Line(Colour::Notice, view_.Say(texts::kNeverReached) + ": break " + breakpoint.text);
  }
  for (const std::string& name : missing_) {
    view_.Line(Colour::Notice, view_.Say(texts::kNoSuchObject) + ": " + name);
  }
}

}  // namespace ZAFHartDebugger
