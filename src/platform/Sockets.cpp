#include "platform/Sockets.h"

#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

#include "platform/Failure.h"
#include "platform/NativeAddress.h"

namespace platform {
namespace {

constexpr int kBacklog = 64;  // connections that wait for Accept

[[noreturn]] void Raise(const std::string& what, int error) {
  throw Failure(ErrorNumber::DeviceIo, "platform.Sockets",
                what + ": " + std::generic_category().message(error));
}

bool IsForLater(int error) {
  return error == EAGAIN || error == EWOULDBLOCK || error == EINTR || error == ENOBUFS;
}

// The result of a call on a socket; nothing when it has to be made again later.
std::optional<std::size_t> Result(ssize_t result, const char* what) {
  if (result >= 0) return static_cast<std::size_t>(result);
  if (!IsForLater(errno)) Raise(what, errno);
  return std::nullopt;
}

void SetOption(int descriptor, int level, int option, bool on = true) {
  const int value = on ? 1 : 0;
  setsockopt(descriptor, level, option, &value, sizeof(value));
}

// What the network reports of single datagrams: a connected socket tells what is final unasked, and
// passes over what may be better in a moment.
void SetTellsErrors(int descriptor, bool isV6, bool on) {
#if defined(IP_RECVERR) && defined(IPV6_RECVERR)
  SetOption(descriptor, isV6 ? IPPROTO_IPV6 : IPPROTO_IP, isV6 ? IPV6_RECVERR : IP_RECVERR, on);
#endif
}

}  // namespace

Socket::Socket(Kind kind, const SocketAddress& like)
    : descriptor_(socket(like.isV6 ? AF_INET6 : AF_INET,
                         kind == Kind::Stream ? SOCK_STREAM : SOCK_DGRAM, 0)) {
  if (descriptor_ < 0) Raise("Cannot open a socket for " + like.Text(), errno);
  fcntl(descriptor_, F_SETFD, FD_CLOEXEC);
  fcntl(descriptor_, F_SETFL, O_NONBLOCK);
}

Socket::Socket(Socket&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}

Socket& Socket::operator=(Socket&& other) noexcept {
  std::swap(descriptor_, other.descriptor_);
  return *this;
}

Socket::~Socket() {
  if (descriptor_ >= 0) close(descriptor_);
}

SocketAddress Socket::LocalAddress() const {
  NativeAddress native;
  if (getsockname(descriptor_, native.Get(), &native.size) != 0) {
    Raise("Cannot tell the address of a socket", errno);
  }
  return FromNative(native.Get()).value_or(SocketAddress{});
}

void Socket::Bind(const SocketAddress& local) {
  const NativeAddress native(local);
  if (bind(descriptor_, native.Get(), native.size) != 0) {
    Raise("Cannot listen at " + local.Text(), errno);
  }
}

UdpSocket UdpSocket::ConnectTo(const SocketAddress& peer) {
  UdpSocket socket(Kind::Datagram, peer);
  socket.Connect(peer);
  return socket;
}

UdpSocket UdpSocket::BindTo(const SocketAddress& local) {
  UdpSocket socket(Kind::Datagram, local);
  socket.Bind(local);
  return socket;
}

UdpSocket UdpSocket::OpenTowards(const SocketAddress& peer) {
  SocketAddress local = ConnectTo(peer).LocalAddress();
  local.port = 0;
  UdpSocket socket = BindTo(local);
  SetTellsErrors(socket.Descriptor(), local.isV6, true);
  return socket;
}

void UdpSocket::Connect(const SocketAddress& peer) {
  const NativeAddress native(peer);
  if (connect(Descriptor(), native.Get(), native.size) != 0) {
    Raise("Cannot reach " + peer.Text(), errno);
  }
  SetTellsErrors(Descriptor(), peer.isV6, false);
}

bool UdpSocket::Send(std::span<const std::uint8_t> datagram) {
  return Result(send(Descriptor(), datagram.data(), datagram.size(), MSG_NOSIGNAL), "Cannot send")
      .has_value();
}

bool UdpSocket::SendTo(const SocketAddress& peer, std::span<const std::uint8_t> datagram) {
  const NativeAddress native(peer);
  return Result(sendto(Descriptor(), datagram.data(), datagram.size(), MSG_NOSIGNAL, native.Get(),
                       native.size),
                "Cannot send")
      .has_value();
}

std::optional<UdpSocket::Received> UdpSocket::Receive(std::span<std::uint8_t> buffer) {
  NativeAddress native;
  const auto size = Result(
      recvfrom(Descriptor(), buffer.data(), buffer.size(), MSG_TRUNC, native.Get(), &native.size),
      "Cannot receive");
  if (!size) return std::nullopt;
  return Received{*size, FromNative(native.Get()).value_or(SocketAddress{})};
}

TcpSocket TcpSocket::ConnectTo(const SocketAddress& peer) {
  TcpSocket socket(Kind::Stream, peer);
  SetOption(socket.Descriptor(), IPPROTO_TCP, TCP_NODELAY);
  const NativeAddress native(peer);
  if (connect(socket.Descriptor(), native.Get(), native.size) != 0 && errno != EINPROGRESS) {
    Raise("Cannot connect to " + peer.Text(), errno);
  }
  return socket;
}

void TcpSocket::FinishConnect(const SocketAddress& peer) {
  int error = 0;
  socklen_t size = sizeof(error);
  if (getsockopt(Descriptor(), SOL_SOCKET, SO_ERROR, &error, &size) != 0) error = errno;
  if (error != 0) Raise("Cannot connect to " + peer.Text(), error);
}

std::size_t TcpSocket::Send(std::span<const std::uint8_t> bytes) {
  return Result(send(Descriptor(), bytes.data(), bytes.size(), MSG_NOSIGNAL),
                "The connection is lost")
      .value_or(0);
}

std::optional<std::size_t> TcpSocket::Receive(std::span<std::uint8_t> buffer) {
  return Result(recv(Descriptor(), buffer.data(), buffer.size(), 0), "The connection is lost");
}

TcpListener TcpListener::BindTo(const SocketAddress& local) {
  TcpListener socket(Kind::Stream, local);
  SetOption(socket.Descriptor(), SOL_SOCKET, SO_REUSEADDR);
  socket.Bind(local);
  if (listen(socket.Descriptor(), kBacklog) != 0) Raise("Cannot listen at " + local.Text(), errno);
  return socket;
}

std::optional<TcpListener::Accepted> TcpListener::Accept() {
  NativeAddress native;
  const int descriptor = accept(Descriptor(), native.Get(), &native.size);
  if (descriptor < 0) {
    // A peer that gave up meanwhile is no fault of this end.
    if (IsForLater(errno) || errno == ECONNABORTED) return std::nullopt;
    Raise("Cannot accept a connection", errno);
  }
  TcpSocket socket(descriptor);
  fcntl(descriptor, F_SETFD, FD_CLOEXEC);
  fcntl(descriptor, F_SETFL, O_NONBLOCK);
  SetOption(descriptor, IPPROTO_TCP, TCP_NODELAY);
  return Accepted{std::move(socket), FromNative(native.Get()).value_or(SocketAddress{})};
}

}  // namespace platform
