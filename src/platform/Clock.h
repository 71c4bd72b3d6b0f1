#pragma once

#include <chrono>
#include <cstdint>
#include <memory>

#include "platform/Export.h"

namespace platform {

using Milliseconds = std::chrono::milliseconds;

// Millisecond tick count of the system; wraps around after 49.7 days.
using TickCount = std::uint32_t;

// The time that a thread's platform goes by; used on that thread only.
class ZAF_API Clock {
 public:
  virtual ~Clock();
  // Time since some fixed moment; never goes back.
  virtual Milliseconds Now() = 0;
  // The same, up to some 10 ms late and many times cheaper: for ages that count in seconds. Compare
  // it with itself only.
  virtual Milliseconds CoarseNow() { return Now(); }
  // Blocks the thread; a manual clock moves on instead.
  virtual void Sleep(Milliseconds duration) = 0;
  // Sleep takes time by itself; a manual clock's does not, and waits for nothing else either.
  virtual bool SleepBlocks() const { return true; }
  // Date and time of day, UTC.
  virtual std::chrono::system_clock::time_point WallTime() = 0;

  // Now() and CoarseNow() as tick counts: subtract them to get an age, in ms.
  TickCount Ticks() { return static_cast<TickCount>(Now().count()); }
  TickCount CoarseTicks() { return static_cast<TickCount>(CoarseNow().count()); }
};

// The system's steady clock, and its date and time.
ZAF_API std::unique_ptr<Clock> MakeSystemClock();

// A clock for tests: stands still until it is advanced or slept on.
class ZAF_API ManualClock : public Clock {
 public:
  explicit ManualClock(Milliseconds start = Milliseconds{1'000'000});
  Milliseconds Now() override { return now_; }
  void Sleep(Milliseconds duration) override { now_ += duration; }
  bool SleepBlocks() const override { return false; }
  // 1 January 2020, 0:00 UTC, and Now() on top.
  std::chrono::system_clock::time_point WallTime() override;
  // Moves on, and never back: `duration` is not negative.
  void Advance(Milliseconds duration) { now_ += duration; }

 private:
  Milliseconds now_;
};

}  // namespace platform
