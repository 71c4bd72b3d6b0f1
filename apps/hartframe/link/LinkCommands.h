#pragma once

#include "hartframe/Console.h"
#include "hartframe/Options.h"
#include "hartframe/Speech.h"
#include "hartframe/report/Report.h"

namespace hartframe {

// The commands that talk to devices without a DTM. Failures as those of the others; Cancelled after
// Ctrl-C.
ExitCode RunScan(const Options& options, Console& console, const Speech& say, Report& report);
ExitCode RunRaw(const Options& options, const Speech& say, Report& report);

}  // namespace hartframe
