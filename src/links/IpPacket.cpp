#include "links/IpPacket.h"

namespace HartLinks {

using platform::SocketAddress;
using ZAFHartTypes::hart::Bytes;
using Packet = std::vector<std::uint8_t>;

namespace {

constexpr std::uint8_t kUdp = 17;  // protocol numbers of IP
constexpr std::uint8_t kTcp = 6;
constexpr std::size_t kUdpChecksumAt = 6;
constexpr std::size_t kTcpChecksumAt = 16;
constexpr std::size_t kIpV4ChecksumAt = 10;
constexpr std::size_t kUdpHeader = 8;
constexpr std::size_t kIpV4Header = 20;
constexpr unsigned kTimeToLive = 64;

void Append(Packet& packet, std::uint64_t value, int size) {
  while (size-- > 0) packet.push_back(static_cast<std::uint8_t>(value >> (8 * size)));
}

void Append(Packet& packet, Bytes bytes) {
  packet.insert(packet.end(), bytes.begin(), bytes.end());
}

// The check sum of the internet protocols: complement of the one's complement sum of 16-bit words.
std::uint16_t Checksum(Bytes bytes) {
  std::uint32_t sum = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    sum += i % 2 == 0 ? static_cast<std::uint32_t>(bytes[i]) << 8 : bytes[i];
  }
  while (sum > UINT16_MAX) sum = (sum & UINT16_MAX) + (sum >> 16);
  return static_cast<std::uint16_t>(~sum);
}

void PutChecksum(Packet& packet, std::size_t at, std::uint16_t sum) {
  packet[at] = static_cast<std::uint8_t>(sum >> 8);
  packet[at + 1] = static_cast<std::uint8_t>(sum);
}

// The sum of a segment covers its addresses, protocol and length too.
std::uint16_t SegmentChecksum(const SocketAddress& from, const SocketAddress& to,
                              std::uint8_t protocol, const Packet& segment) {
  Packet covered;
  Append(covered, from.Bytes());
  Append(covered, to.Bytes());
  Append(covered, protocol, 4);
  Append(covered, segment.size(), 4);
  Append(covered, segment);
  return Checksum(covered);
}

Packet WithIpHeader(const SocketAddress& from, const SocketAddress& to, std::uint8_t protocol,
                    const Packet& segment) {
  Packet packet;
  if (from.isV6) {
    Append(packet, 0x60000000, 4);  // version 6, no traffic class, no flow
    Append(packet, segment.size(), 2);
    Append(packet, protocol, 1);
    Append(packet, kTimeToLive, 1);
  } else {
    Append(packet, 0x4500, 2);  // version 4, header of five words
    Append(packet, kIpV4Header + segment.size(), 2);
    Append(packet, 0x4000, 4);  // no identification, not to be fragmented
    Append(packet, kTimeToLive, 1);
    Append(packet, protocol, 1);
    Append(packet, 0, 2);
  }
  Append(packet, from.Bytes());
  Append(packet, to.Bytes());
  if (!from.isV6) PutChecksum(packet, kIpV4ChecksumAt, Checksum(packet));
  Append(packet, segment);
  return packet;
}

}  // namespace

Packet UdpPacket(const SocketAddress& from, const SocketAddress& to, Bytes payload) {
  Packet segment;
  Append(segment, from.port, 2);
  Append(segment, to.port, 2);
  Append(segment, kUdpHeader + payload.size(), 2);
  Append(segment, 0, 2);
  Append(segment, payload);
  const std::uint16_t sum = SegmentChecksum(from, to, kUdp, segment);
  PutChecksum(segment, kUdpChecksumAt, sum == 0 ? UINT16_MAX : sum);  // 0 means: without
  return WithIpHeader(from, to, kUdp, segment);
}

Packet TcpPacket(const SocketAddress& from, const SocketAddress& to, TcpPosition position,
                 int flags, Bytes payload) {
  Packet segment;
  Append(segment, from.port, 2);
  Append(segment, to.port, 2);
  Append(segment, position.sequence, 4);
  Append(segment, position.acknowledgement, 4);
  Append(segment, 0x50, 1);  // header of five words
  Append(segment, static_cast<std::uint8_t>(flags), 1);
  Append(segment, UINT16_MAX, 2);  // window
  Append(segment, 0, 4);           // check sum, urgent pointer
  Append(segment, payload);
  PutChecksum(segment, kTcpChecksumAt, SegmentChecksum(from, to, kTcp, segment));
  return WithIpHeader(from, to, kTcp, segment);
}

}  // namespace HartLinks
