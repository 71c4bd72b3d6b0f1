#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "debugger/Breakpoints.h"
#include "debugger/Duration.h"
#include "debugger/Settings.h"
#include "debugger/Statistics.h"
#include "debugger/Stepper.h"
#include "debugger/Terminal.h"
#include "debugger/TraceView.h"
#include "interfaces/IDDWorkerDB.h"

namespace ZAFHartDebugger {

// Where an execution has stopped.
struct StopPlace {
  OperationStack* operations = nullptr;
  std::shared_ptr<ZAFHartTypes::IDDWorkerDB> database;  // may be nothing
  Time now{};
  std::int32_t level = 0;  // of the operation that starts, has ended or is running; 0 for none
};

// What the tracers of a host have in common: settings, breaks, watched names, figures and the
// terminal. Made by the host and shared with its tracers.
class Debugger {
 public:
  explicit Debugger(std::shared_ptr<Terminal> terminal, Settings settings = {},
                    TimeSource now = SteadyTime);
  Debugger(const Debugger&) = delete;
  Debugger& operator=(const Debugger&) = delete;

  // --- for hosts ---
  Settings& Edit() {
    ++version_;
    return settings_;
  }
  const Settings& Shown() const { return settings_; }
  // Raises InvalidArgument for what is no place to break.
  void Break(std::string_view place);
  void Watch(std::string_view name);
  // False when it was not watched.
  bool Unwatch(std::string_view name);
  // Runs commands of the prompt, separated by ";". One that is wrong is told on the terminal and
  // the others run.
  void RunScript(std::string_view script);
  // What "quit" does besides running on without breaks; nothing for a debugger at first.
  void SetOnQuit(std::function<void(const StopPlace&)> onQuit) { onQuit_ = std::move(onQuit); }
  // Writes what was never reached, and the summary; once.
  void End();

  // --- for tracers and commands ---
  // Changes whenever what a tracer takes from here may have changed.
  int Version() const { return version_; }
  // Operations that have to be told: the deepest level.
  std::int32_t NeededDepth() const;
  std::int32_t NeededLevel() const;
  Time Now() const { return now_(); }
  TraceView& View() { return view_; }
  Breakpoints& Breaks() { return breakpoints_; }
  // By position from 1; false when there is none.
  bool RemoveBreak(std::size_t position);
  const std::vector<std::string>& Watched() const { return watched_; }
  // Goes on from an operation of that level, 0 outside of all.
  void Go(Step step, std::int32_t level);
  const Stepper& Steps() const { return stepper_; }
  Statistics& Counts() { return statistics_; }
  // Counts an operation that has ended, when the summary is to have it.
  void Count(const Operation& operation);
  // The language of the first GUI manager, unless one was set.
  void SetDefaultLanguage(const std::string& language);
  // Watched names that a tracer's database did not have to the end.
  void NoteMissing(std::vector<std::string> names) { missing_ = std::move(names); }
  // Asks for commands until one lets the execution go on.
  void Ask(const StopPlace& place, std::string_view reason);
  // Nothing stops any more.
  void RunFreely();
  void Quit(const StopPlace& place);

 private:
  void TellUnreached();

  std::shared_ptr<Terminal> terminal_;
  TimeSource now_;
  Settings settings_;
  std::string language_;
  TraceView view_;
  Breakpoints breakpoints_;
  std::vector<std::string> watched_;
  std::vector<std::string> missing_;
  Stepper stepper_;
  Statistics statistics_;
  std::function<void(const StopPlace&)> onQuit_;
  std::string lastCommand_ = "step";  // an empty line repeats it
  int version_ = 1;
  bool isAsking_ = false;
  bool hasEnded_ = false;
};

}  // namespace ZAFHartDebugger
