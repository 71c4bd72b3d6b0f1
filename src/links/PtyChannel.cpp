#include "links/PtyChannel.h"

#include <array>

#include "platform/Platform.h"

namespace HartLinks {

namespace {

constexpr platform::Milliseconds kLookInterval{100};

platform::MessageLoop& Loop() {
  return platform::Current().Loop();
}

}  // namespace

PtyChannel::PtyChannel() {
  Watch();
}

void PtyChannel::Watch() {
  readable_ = Loop().Watch({terminal_.Descriptor()}, [this] { Receive(); });
}

void PtyChannel::Receive() {
  std::array<std::uint8_t, 512> bytes{};
  std::size_t size = 0;
  bool isUsed = false;  // somebody has the other end open
  platform::IgnoreFailures([&] {
    const auto received = terminal_.Receive(bytes);
    isUsed = received.has_value();
    size = received.value_or(0);
  });
  if (!isUsed) {
    readable_.Cancel();
    lookingAgain_ = Loop().StartOnce(kLookInterval, [this] { Watch(); });
    return;
  }
  for (std::size_t i = 0; i < size && listener_; ++i) listener_->OnByte(bytes[i], false);
}

void PtyChannel::Send(ZAFHartTypes::hart::Bytes bytes) {
  platform::IgnoreFailures([&] { terminal_.Send(bytes); });
  sent_ = Loop().Post([this] {
    if (listener_) listener_->OnSent();
  });
}

}  // namespace HartLinks
