#pragma once

#include <memory>

#include "debugger/Debugger.h"
#include "hartframe/Console.h"
#include "hartframe/Options.h"
#include "hartframe/SignalWatch.h"

namespace hartframe {

// Makes a tracer for every instance created from now on, as the command line says; all share the
// debugger, whose summary is the caller's to ask for. "quit" is what Ctrl-C is. `console` and
// `signals` outlive it. Raises CommandFailure (FileBroken) when the trace's file cannot be made.
std::shared_ptr<ZAFHartDebugger::Debugger> StartTracing(const Options& options, Console& console,
                                                        SignalWatch& signals);

}  // namespace hartframe
