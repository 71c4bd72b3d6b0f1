#pragma once

#include "hart/LinkFrame.h"
#include "platform/Clock.h"

namespace HartLinks {

// The times of the HART token-passing data link layer, as multiples of a character's time.
struct BusTimes {
  using Microseconds = std::chrono::microseconds;

  // `latency`: what lies between wire and program, of a wireless adapter for instance.
  BusTimes(Microseconds characterTime, bool primaryMaster, platform::Milliseconds latency);

  platform::Milliseconds Characters(std::size_t count) const;  // rounded up
  // From the end of a request of so many characters until the first byte of its reply at the
  // latest: RT1. From the request's beginning on it is never less than at 1200 baud, because what
  // answers behind a pseudo terminal may have such a line behind it.
  platform::Milliseconds Reply(std::size_t requestSize) const;
  // From there until the longest reply has ended: what still comes then is noise.
  platform::Milliseconds ReplyEnd(std::size_t requestSize) const;

  Microseconds character;  // time of one on the wire: start bit, 8 data bits, parity, stop bit
  // RT1: silence after which a master may take a bus that it knows nothing of. 33 characters for
  // the primary, 41 for the secondary master, longer than a device's time for its reply (STO, 28).
  platform::Milliseconds takeIdle;
  // RT2, 8 characters: what a master leaves to the other one after a transaction of its own.
  platform::Milliseconds leaveToOther;
  // A frame with a silence as long as this in it goes on no more. Adapters deliver in lumps, so it
  // is never below 50 ms.
  platform::Milliseconds frameGap;

 private:
  platform::Milliseconds latency_;
};

// Bus arbitration: says from what was heard and sent when this master may begin to send.
class BusAccess {
 public:
  // Free at once; Lost tells that nothing is known of the bus. All moments are of one clock, the
  // caller's.
  BusAccess(BusTimes times, bool primaryMaster) : times_(times), primaryMaster_(primaryMaster) {}

  // Nothing is known of the bus: it was opened just now, or what it brought was no good frame.
  void Lost(platform::Milliseconds now) { free_ = now + times_.takeIdle; }
  // A byte outside of frames: preambles of one that comes, or noise.
  void HeardByte(platform::Milliseconds now);
  // A good frame has ended; its type and master bit tell whose the bus is.
  void Heard(const ZAFHartTypes::hart::LinkFrame& frame, platform::Milliseconds now);

  // The moment from which this master may send.
  platform::Milliseconds Free() const { return free_; }

 private:
  BusTimes times_;
  bool primaryMaster_;
  platform::Milliseconds free_{0};
};

}  // namespace HartLinks
