#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "platform/Export.h"
#include "platform/SocketAddress.h"

// Sockets that never block: watch Descriptor() with MessageLoop::Watch and call again. What fails
// raises DeviceIo with what was tried, the address and the system's reason. Movable, closed with
// the object; cancel the watch first.
namespace platform {

// What all sockets have in common; made by the classes below.
class ZAF_API Socket {
 public:
  Socket(Socket&& other) noexcept;
  Socket& operator=(Socket&& other) noexcept;
  ~Socket();

  // For MessageLoop::Watch; not to be closed.
  int Descriptor() const { return descriptor_; }
  // This end's address; the port that the system chose when it was opened with port 0.
  SocketAddress LocalAddress() const;

 protected:
  enum class Kind : std::uint8_t { Datagram, Stream };
  Socket(Kind kind, const SocketAddress& like);
  explicit Socket(int descriptor) : descriptor_(descriptor) {}
  void Bind(const SocketAddress& local);

 private:
  int descriptor_;
};

// Datagrams: each may be lost, doubled or overtaken.
class ZAF_API UdpSocket : public Socket {
 public:
  // Exchanges datagrams with this peer only. That it refuses them, a later call tells.
  static UdpSocket ConnectTo(const SocketAddress& peer);
  // Takes datagrams from anyone; port 0 for any free one.
  static UdpSocket BindTo(const SocketAddress& local);
  // As BindTo, at the address and a free port from which this peer is reached. That a peer refuses
  // datagrams, a later call tells where the system can (Linux).
  static UdpSocket OpenTowards(const SocketAddress& peer);

  // From now on as one made by ConnectTo; its own address stays.
  void Connect(const SocketAddress& peer);

  // One datagram, by Send to the peer of Connect. False when it cannot be taken just now; it is
  // lost, as one on the way may be.
  bool Send(std::span<const std::uint8_t> datagram);
  bool SendTo(const SocketAddress& peer, std::span<const std::uint8_t> datagram);

  struct Received {
    std::size_t size = 0;  // of the datagram; more than the buffer's when it was cut
    SocketAddress from;
  };
  // The next datagram; nothing when there is none.
  std::optional<Received> Receive(std::span<std::uint8_t> buffer);

 private:
  using Socket::Socket;
};

// A connection: a stream of bytes without boundaries.
class ZAF_API TcpSocket : public Socket {
 public:
  // Starts to connect; the socket becomes writable when that has ended.
  static TcpSocket ConnectTo(const SocketAddress& peer);
  // Raises when the peer could not be reached. REQUIRES: the socket has become writable.
  void FinishConnect(const SocketAddress& peer);

  // The number of bytes that were taken, from the first on, 0 when none can be just now; wait until
  // it is writable for the rest. A peer that has gone raises.
  std::size_t Send(std::span<const std::uint8_t> bytes);
  // What has come: the number of bytes, 0 when the peer has closed; nothing when none are there.
  std::optional<std::size_t> Receive(std::span<std::uint8_t> buffer);

 private:
  friend class TcpListener;
  using Socket::Socket;
};

// Waits for connections at an address; 64 may wait to be accepted.
class ZAF_API TcpListener : public Socket {
 public:
  // Port 0 for any free one. A port whose last connections are still fading is taken all the same.
  static TcpListener BindTo(const SocketAddress& local);

  struct Accepted;
  // The next connection; nothing when there is none (readable again when one comes).
  std::optional<Accepted> Accept();

 private:
  using Socket::Socket;
};

// A connection that a peer has made, connected already.
struct TcpListener::Accepted {
  TcpSocket socket;
  SocketAddress from;
};

}  // namespace platform
