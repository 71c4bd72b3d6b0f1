#include "links/BusAccess.h"

#include <algorithm>

namespace HartLinks {

namespace hart = ZAFHartTypes::hart;
using platform::Milliseconds;

namespace {

constexpr std::size_t kTakeIdlePrimary = 33;
constexpr std::size_t kTakeIdleSecondary = 41;
constexpr std::size_t kLeaveToOther = 8;
constexpr Milliseconds kLeastFrameGap{50};
constexpr std::chrono::microseconds kCharacterAt1200Baud{9167};

}  // namespace

BusTimes::BusTimes(Microseconds characterTime, bool primaryMaster, Milliseconds latency)
    : character(characterTime), latency_(latency) {
  takeIdle = Characters(primaryMaster ? kTakeIdlePrimary : kTakeIdleSecondary);
  leaveToOther = Characters(kLeaveToOther);
  frameGap = std::max(leaveToOther, kLeastFrameGap) + latency;
}

Milliseconds BusTimes::Characters(std::size_t count) const {
  return std::chrono::ceil<Milliseconds>(character * count);
}

Milliseconds BusTimes::Reply(std::size_t requestSize) const {
  const auto at1200Baud =
      std::chrono::ceil<Milliseconds>(kCharacterAt1200Baud * (requestSize + kTakeIdlePrimary));
  return latency_ + std::max(takeIdle, at1200Baud - Characters(requestSize));
}

Milliseconds BusTimes::ReplyEnd(std::size_t requestSize) const {
  constexpr std::size_t longest = hart::kMaxPreambles + hart::kMaxFrameSize;
  return Reply(requestSize) +
         std::chrono::ceil<Milliseconds>(std::max(character, kCharacterAt1200Baud) * longest);
}

void BusAccess::HeardByte(Milliseconds now) {
  free_ = std::max(free_, now + times_.leaveToOther);
}

void BusAccess::Heard(const hart::LinkFrame& frame, Milliseconds now) {
  const bool ours = frame.primaryMaster == primaryMaster_;
  switch (frame.type) {
    case hart::FrameType::Request:  // whoever asked has the bus until it is answered
      return Lost(now);
    case hart::FrameType::Reply:
    case hart::FrameType::Burst:
      break;
  }
  // Behind a reply of a device in burst mode comes its burst frame, which gives the bus away.
  if (frame.burst && frame.type == hart::FrameType::Reply) return Lost(now);
  // What went to the other master gives the bus to this one, at once; and the other way round.
  free_ = ours ? now + times_.leaveToOther : now;
}

}  // namespace HartLinks
