#pragma once

#include <cstdint>
#include <vector>

#include "hart/Numbers.h"
#include "platform/SocketAddress.h"

// IP packets as they go over a network, from the IP header on, with their check sums. Both
// addresses are of the same kind (IPv4 or IPv6).
namespace HartLinks {

std::vector<std::uint8_t> UdpPacket(const platform::SocketAddress& from,
                                    const platform::SocketAddress& to,
                                    ZAFHartTypes::hart::Bytes payload);

enum TcpFlag : std::uint8_t { kTcpFin = 0x01, kTcpSyn = 0x02, kTcpPush = 0x08, kTcpAck = 0x10 };

struct TcpPosition {
  std::uint32_t sequence = 0;         // of the first byte
  std::uint32_t acknowledgement = 0;  // of the next byte that is expected
};

std::vector<std::uint8_t> TcpPacket(const platform::SocketAddress& from,
                                    const platform::SocketAddress& to, TcpPosition position,
                                    int flags, ZAFHartTypes::hart::Bytes payload);

}  // namespace HartLinks
