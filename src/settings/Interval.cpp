#include "settings/Interval.h"

#include "platform/Platform.h"

namespace ZAFHartLib {

bool IntervalElapsed(platform::TickCount& last, platform::TickCount interval) {
  const platform::TickCount now = platform::Current().GetClock().Ticks();
  if (now >= last && now - last < interval) return false;
  last = now;
  return true;
}

}  // namespace ZAFHartLib
