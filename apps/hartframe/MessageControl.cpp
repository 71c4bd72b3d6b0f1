#include "hartframe/MessageControl.h"

#include "hartframe/methods/InputQuestion.h"
#include "platform/Platform.h"

namespace hartframe {

namespace {

using ZAFHartTypes::MessageIcon;
using ZAFHartTypes::UserMessage;

// A message with a time that tells that something takes time, as opposed to one that goes away by
// itself after that time.
bool IsPause(const UserMessage& message) {
  return message.delay > 0 && message.icon == MessageIcon::Information;
}

void Pause(std::int32_t seconds, const SignalWatch& signals) {
  platform::Clock& clock = platform::Current().GetClock();
  const auto end = clock.Now() + std::chrono::seconds(seconds);
  while (clock.Now() < end && !signals.Interrupted()) {
    platform::Current().Loop().WaitStep(platform::Milliseconds(20));
  }
}

}  // namespace

std::int32_t MessageControl::ShowUserMessage(UserMessage& message) {
  report_.Message(message);
  if (message.input &&
      !AskForValue(*message.input, console_, speech_, [this] { return signals_.Interrupted(); }))
    return ZAFHartTypes::kMessageCancelled;
  if (IsPause(message)) Pause(message.delay, signals_);
  return signals_.Interrupted() ? ZAFHartTypes::kMessageCancelled : 0;
}

}  // namespace hartframe
