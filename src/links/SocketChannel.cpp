#include "links/SocketChannel.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/Platform.h"

namespace HartLinks {

namespace hart = ZAFHartTypes::hart;
using platform::Failure;
using platform::SocketAddress;

namespace {

using Buffer = std::array<std::uint8_t, 4096>;  // more than a message has

platform::MessageLoop& Loop() {
  return platform::Current().Loop();
}

}  // namespace

SocketChannel::SocketChannel(const HartIpServerName& server, std::size_t attempt,
                             std::shared_ptr<IPacketObserver> observer, User& user)
    : flow_{server.transport, {}, {}},
      attempt_(attempt),
      observer_(std::move(observer)),
      user_(user),
      lookup_(server.host, server.port,
              [this](NameLookup::Result result) { Found(std::move(result)); }) {}

void SocketChannel::Found(NameLookup::Result result) {
  addresses_ = std::move(result.addresses);
  reason_ = std::move(result.error);
  if (!addresses_.empty()) {
    const auto first = static_cast<std::ptrdiff_t>(attempt_ % addresses_.size());
    std::rotate(addresses_.begin(), addresses_.begin() + first, addresses_.end());
  }
  TryNext();
}

void SocketChannel::TryNext() {
  while (next_ < addresses_.size()) {
    flow_.peer = addresses_[next_++];
    try {
      return Connect(flow_.peer);
    } catch (const Failure& failure) {
      reason_ = failure.Description();
    }
  }
  Lose(std::exchange(reason_, {}));
}

platform::Subscription SocketChannel::WatchReadable(const platform::Socket& socket) {
  return Loop().Watch({socket.Descriptor()}, [this] { Receive(); });
}

void SocketChannel::Opened(const platform::Socket& socket) {
  flow_.local = socket.LocalAddress();
  if (observer_ && flow_.transport == Transport::Tcp) {
    observer_->OnOpened(flow_, Direction::Sent);
  }
  user_.OnOpen();
}

void SocketChannel::Received(hart::Bytes bytes) {
  if (observer_) observer_->OnBytes(flow_, Direction::Received, bytes);
  user_.OnReceive(bytes);
}

void SocketChannel::TellSent(hart::Bytes bytes) {
  if (observer_) observer_->OnBytes(flow_, Direction::Sent, bytes);
}

void SocketChannel::LoseLater(const std::string& reason) {
  losing_ = Loop().Post([this, reason] { Lose(reason); });
}

void UdpChannel::Connect(const SocketAddress& peer) {
  socket_ = platform::UdpSocket::OpenTowards(peer);
  readable_ = WatchReadable(*socket_);
  Opened(*socket_);
}

void UdpChannel::Send(hart::Bytes message) {
  Guard([&] {
    const bool taken =
        isConnected_ ? socket_->Send(message) : socket_->SendTo(GetFlow().peer, message);
    if (taken) TellSent(message);
  });
}

void UdpChannel::Receive() {
  Buffer buffer;
  std::optional<std::size_t> size;
  try {
    size = ReceiveFromPeer(buffer);
  } catch (const Failure& failure) {
    return Lose(failure.Description());
  }
  if (size) Received(hart::Bytes(buffer).first(std::min(*size, buffer.size())));
}

std::optional<std::size_t> UdpChannel::ReceiveFromPeer(std::span<std::uint8_t> buffer) {
  const auto received = socket_->Receive(buffer);
  if (!received) return std::nullopt;
  if (!isConnected_) {
    if (!std::ranges::equal(received->from.Bytes(), GetFlow().peer.Bytes())) return std::nullopt;
    socket_->Connect(received->from);
    SetPeer(received->from);
    isConnected_ = true;
  }
  return received->size;
}

TcpChannel::~TcpChannel() {
  if (isOpen_ && Observer()) Observer()->OnClosed(GetFlow());
}

void TcpChannel::Connect(const SocketAddress& peer) {
  socket_ = platform::TcpSocket::ConnectTo(peer);
  writable_ = Loop().Watch({socket_->Descriptor(), platform::Readiness::Writable},
                           [this] { FinishConnect(); });
}

void TcpChannel::FinishConnect() {
  writable_.Cancel();
  try {
    socket_->FinishConnect(GetFlow().peer);
  } catch (const Failure& failure) {
    SetReason(failure.Description());
    socket_.reset();
    return TryNext();
  }
  isOpen_ = true;
  readable_ = WatchReadable(*socket_);
  Opened(*socket_);
}

void TcpChannel::Send(hart::Bytes message) {
  unsent_.insert(unsent_.end(), message.begin(), message.end());
  TellSent(message);
  Guard([&] { Flush(); });
}

void TcpChannel::Flush() {
  const std::size_t taken = socket_->Send(unsent_);
  unsent_.erase(unsent_.begin(), unsent_.begin() + static_cast<std::ptrdiff_t>(taken));
  if (unsent_.empty()) return writable_.Cancel();
  if (writable_.IsActive()) return;
  writable_ = Loop().Watch({socket_->Descriptor(), platform::Readiness::Writable},
                           [this] { Guard([this] { Flush(); }); });
}

void TcpChannel::Receive() {
  Buffer buffer;
  std::optional<std::size_t> size;
  try {
    size = socket_->Receive(buffer);
  } catch (const Failure& failure) {
    return Lose(failure.Description());
  }
  if (!size) return;
  if (*size == 0) return Lose("The server has closed the connection");
  Received(hart::Bytes(buffer).first(*size));
}

}  // namespace HartLinks
