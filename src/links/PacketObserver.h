#pragma once

#include <cstdint>

#include "hart/Numbers.h"
#include "platform/Export.h"
#include "platform/SocketAddress.h"

namespace HartLinks {

// Transport of HART-IP.
enum class Transport : std::uint8_t { Udp, Tcp };

// Two ends that exchange messages.
struct Flow {
  Transport transport = Transport::Udp;
  platform::SocketAddress local;  // this program's end
  platform::SocketAddress peer;

  friend bool operator==(const Flow&, const Flow&) = default;
};

// As seen from the local end.
enum class Direction : std::uint8_t { Sent, Received };

// Is told what really goes over a socket. Must not throw.
class ZAF_API IPacketObserver {
 public:
  virtual ~IPacketObserver() = default;
  // A TCP connection is made (Direction::Sent: by this end, else by the peer), and gone.
  virtual void OnOpened(const Flow& flow, Direction sent) = 0;
  virtual void OnClosed(const Flow& flow) = 0;
  // A datagram; of a TCP connection, bytes as they came.
  virtual void OnBytes(const Flow& flow, Direction direction, ZAFHartTypes::hart::Bytes bytes) = 0;
};

}  // namespace HartLinks
