#include "gui/Asynchronizer.h"

#include <utility>

#include "platform/Platform.h"

namespace ZAFHartLib {

Asynchronizer::Asynchronizer(TimerEvent timerEvent, SignalEvent signalEvent)
    : timerEvent_(std::move(timerEvent)), signalEvent_(std::move(signalEvent)) {}

void Asynchronizer::Start(platform::Milliseconds interval) {
  timer_ = platform::Current().Loop().StartTimer(interval, timerEvent_);
}

void Asynchronizer::Signal(std::int32_t id) {
  if (signal_.IsActive() && waitingId_ == id) return;
  waitingId_ = id;
  signal_ = platform::Current().Loop().Post([event = signalEvent_, id] { event(id); });
}

}  // namespace ZAFHartLib
