#include "links/ServerConnection.h"

#include <array>

#include "platform/Platform.h"

namespace HartLinks {

namespace hart = ZAFHartTypes::hart;

namespace {

// A client that takes no answers gets no more of them.
constexpr std::size_t kMaxUnsent = std::size_t{256} * 1024;

platform::MessageLoop& Loop() {
  return platform::Current().Loop();
}

}  // namespace

ServerConnection::ServerConnection(platform::TcpSocket socket, const platform::SocketAddress& peer,
                                   Received received, Closed closed)
    : socket_(std::move(socket)),
      name_(peer.Text() + "/tcp"),
      received_(std::move(received)),
      closed_(std::move(closed)),
      readable_(Loop().Watch({socket_.Descriptor()}, [this] { Guard([this] { Receive(); }); })) {}

void ServerConnection::Send(hart::Bytes message) {
  if (closing_.IsActive()) return;
  unsent_.insert(unsent_.end(), message.begin(), message.end());
  if (unsent_.size() > kMaxUnsent) return Close();
  Guard([this] { Flush(); });
}

void ServerConnection::HangUp() {
  isEnding_ = true;
  readable_.Cancel();
  if (unsent_.empty()) Close();
}

void ServerConnection::Receive() {
  std::array<std::uint8_t, 4096> buffer;
  const auto size = socket_.Receive(buffer);
  if (!size) return;
  if (*size == 0) return Close();
  Take(hart::Bytes(buffer).first(*size));
}

void ServerConnection::Take(hart::Bytes bytes) {
  const auto self = shared_from_this();
  for (const hart::DecodedHartIp& decoded : stream_.Receive(bytes)) {
    if (!isEnding_) received_(self, decoded);
  }
  if (stream_.IsBroken()) HangUp();
}

void ServerConnection::Flush() {
  const std::size_t taken = socket_.Send(unsent_);
  unsent_.erase(unsent_.begin(), unsent_.begin() + static_cast<std::ptrdiff_t>(taken));
  if (unsent_.empty()) {
    writable_.Cancel();
    if (isEnding_) Close();
  } else if (!writable_.IsActive()) {
    writable_ = Loop().Watch({socket_.Descriptor(), platform::Readiness::Writable},
                             [this] { Guard([this] { Flush(); }); });
  }
}

// Told in an event of its own: whoever sends is not told while it does.
void ServerConnection::Close() {
  if (closing_.IsActive()) return;
  readable_.Cancel();
  writable_.Cancel();
  closing_ = Loop().Post([self = weak_from_this()] {
    if (const auto held = self.lock()) held->closed_(held);
  });
}

}  // namespace HartLinks
