#pragma once

#include <string>
#include <vector>

#include "debugger/Statistics.h"

namespace ZAFHartDebugger {

// What a run did, as lines: commands by number, the slowest operations and the objects that were
// computed most often, `top` of each. No lines when nothing was counted.
std::vector<std::string> SummaryLines(const Statistics& statistics, std::size_t top,
                                      const std::string& language);

}  // namespace ZAFHartDebugger
