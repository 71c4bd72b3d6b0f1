#pragma once

#include <cstdint>
#include <functional>

#include "platform/MessageLoop.h"

namespace ZAFHartLib {

// Periodic timer and deferred signals on the message loop of the thread. Both end with the object.
class Asynchronizer {
 public:
  using TimerEvent = std::function<void()>;
  using SignalEvent = std::function<void(std::int32_t id)>;
  Asynchronizer(TimerEvent timerEvent, SignalEvent signalEvent);

  // TimerEvent every `interval` from now on, first after one interval.
  void Start(platform::Milliseconds interval);
  void Stop() { timer_.Cancel(); }
  bool IsRunning() const { return timer_.IsActive(); }
  // Raises SignalEvent at the next turn of the loop. A signal that still waits stands for both.
  void Signal(std::int32_t id);

 private:
  TimerEvent timerEvent_;
  SignalEvent signalEvent_;
  platform::Subscription timer_;
  platform::Subscription signal_;
  std::int32_t waitingId_ = 0;
};

}  // namespace ZAFHartLib
