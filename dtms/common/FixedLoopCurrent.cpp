#include "common/FixedLoopCurrent.h"

#include "common/HartMethods.h"

namespace hart {
namespace {

constexpr std::int16_t kFixLoopCurrent = 40;  // HART command number
constexpr const char* kReleaseMethod = "release_loop_current";

// Without current the device leaves the mode.
bool SendCurrent(IDDBuiltinLib& dd, double milliamperes) {
  dd.AssignFloat("fixed_loop_current", static_cast<float>(milliamperes));
  return CarryOut(dd, kFixLoopCurrent);
}

// The abort method.
void ReleaseLoopCurrent(IDDBuiltinLib& dd) {
  JudgeReplies(dd);
  if (SendCurrent(dd, 0)) {
    dd.PutMessage(
        "The loop current follows the measurement again.|de|"
        "Der Schleifenstrom folgt wieder dem Messwert.");
  } else {
    dd.Acknowledge(
        "The loop current could not be released: it may still be fixed. Reset the device.|de|"
        "Der Schleifenstrom ließ sich nicht freigeben und steht vielleicht noch fest. "
        "Setzen Sie das Gerät zurück.");
  }
}

}  // namespace

bool FixedLoopCurrent::Fix(double milliamperes) {
  const bool isFirst = !guard_;
  if (isFirst) guard_.emplace(dd_, kReleaseMethod);
  if (SendCurrent(dd_, milliamperes)) return true;
  if (isFirst && !dd_.IsAbort()) {
    guard_->Done();
    guard_.reset();
  }
  return false;
}

bool FixedLoopCurrent::Release() {
  if (!guard_) return true;
  if (!SendCurrent(dd_, 0)) return false;
  guard_->Done();
  guard_.reset();
  return true;
}

void DescribeLoopRelease(ZAFHartTypes::dtmkit::DeviceDescription& dd) {
  dd.Method("release_loop_current")
      .Label("Release loop current|de|Schleifenstrom freigeben")
      .Help("Ends the fixed loop current|de|Beendet den festen Schleifenstrom")
      .Body(ReleaseLoopCurrent);
}

}  // namespace hart
