#pragma once

#include "platform/Clock.h"

namespace ZAFHartLib {

// At least `interval` ms have passed since `last`; then `last` becomes the present. A tick count
// that wrapped around counts as elapsed.
bool IntervalElapsed(platform::TickCount& last, platform::TickCount interval);

}  // namespace ZAFHartLib
