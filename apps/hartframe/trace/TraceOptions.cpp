#include "hartframe/trace/TraceOptions.h"

#include <unistd.h>

#include <CLI/CLI.hpp>

#include "debugger/Breakpoints.h"
#include "platform/Failure.h"

namespace hartframe {

namespace {

// The reason why a text is no place to break; "" when it is one.
std::string RefusedBreak(const std::string& text) {
  try {
    ZAFHartDebugger::Breakpoint::Parse(text);
  } catch (const platform::Failure& failure) {
    return failure.Description();
  }
  return "";
}

void AddContent(CLI::App& app, TraceOptions& options) {
  app.add_option("--trace", options.level,
                 "Trace the library to standard error: 0 errors, 1 what ran, 2 with results; a "
                 "summary at the end")
      ->type_name("LEVEL")
      ->check(CLI::Range(0, 9));
  app.add_option("--trace-depth", options.depth,
                 "Nested operations to trace (default: the trace level)")
      ->type_name("N")
      ->check(CLI::Range(1, 1000));
  app.add_option("--trace-detail", options.detail, "Detail of traced objects (default: 1)")
      ->type_name("N")
      ->check(CLI::Range(0, 9));
  app.add_option("--trace-filter", options.filter,
                 "Only operations whose line holds this, and what is in them")
      ->type_name("TEXT");
  app.add_option("--trace-top", options.top,
                 "Entries of each list of the summary, 0 for no summary (default: 10)")
      ->type_name("N")
      ->check(CLI::Range(0, 1000));
  app.add_option("--trace-file", options.file, "Write the trace to this file")->type_name("FILE");
}

void AddStops(CLI::App& app, TraceOptions& options) {
  app.add_option("--break", options.breaks,
                 "Stop and ask at OPERATION, OPERATION:OBJECT, :OBJECT, error or changed:OBJECT; * "
                 "and ? stand for other characters (repeatable)")
      ->type_name("PLACE")
      ->allow_extra_args(false)
      ->check(CLI::Validator(RefusedBreak, ""));
  app.add_option("--watch", options.watched,
                 "Tell when this variable changes, old and new (repeatable)")
      ->type_name("VARIABLE")
      ->allow_extra_args(false);
}

}  // namespace

void AddTraceOptions(CLI::App& app, TraceOptions& options) {
  AddContent(app, options);
  AddStops(app, options);
}

void CheckTraceBesideScreen(const TraceOptions& options) {
  if (!options.breaks.empty()) throw CLI::ValidationError("--break does not go with browse");
  if (options.IsOn() && options.file.empty() && isatty(STDERR_FILENO) != 0) {
    throw CLI::ValidationError("a trace would write over the screen: add --trace-file FILE");
  }
}

}  // namespace hartframe
