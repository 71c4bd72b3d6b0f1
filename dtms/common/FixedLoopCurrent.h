#pragma once

#include <optional>

#include "dtmkit/dtmkit.h"

namespace hart {

// The loop current held at values of the user's choice (HART command 40) by one run of a method.
// From the first request on the device follows its measurement again whenever the method ends: by
// Release(), or by the abort method "release_loop_current".
class FixedLoopCurrent {
 public:
  // `dd` outlives it and judges replies (hart::JudgeReplies).
  explicit FixedLoopCurrent(ZAFHartTypes::IDDBuiltinLib& dd) : dd_(dd) {}

  // False when the device refuses, which leaves the current as it was, and when the method is
  // aborted.
  bool Fix(double milliamperes);
  // False when the current may still be held: the method is to end, and aborts by that.
  bool Release();

 private:
  ZAFHartTypes::IDDBuiltinLib& dd_;
  std::optional<ZAFHartTypes::dtmkit::AbortGuard> guard_;
};

// The abort method; it is on no menu.
void DescribeLoopRelease(ZAFHartTypes::dtmkit::DeviceDescription& dd);

}  // namespace hart
