#include "links/PcapFile.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "links/IpPacket.h"
#include "platform/Failure.h"
#include "platform/Platform.h"

namespace HartLinks {

using ZAFHartTypes::hart::Bytes;

namespace {

constexpr std::uint32_t kMagic = 0xA1B2C3D4;  // times in microseconds
constexpr std::uint32_t kVersion = 2 | 4 << 16;
constexpr std::uint32_t kLongestPacket = 65535;
constexpr std::uint32_t kRawIp = 101;  // link type: packets begin with the IP header
constexpr std::uint32_t kFirstSent = 1000;
constexpr std::uint32_t kFirstReceived = 2000;

// The file may have either byte order; the magic number tells which.
std::vector<std::uint8_t> LittleEndian(std::initializer_list<std::uint32_t> words) {
  std::vector<std::uint8_t> bytes;
  for (std::uint32_t word : words) {
    for (int i = 0; i < 4; ++i, word >>= 8) bytes.push_back(static_cast<std::uint8_t>(word));
  }
  return bytes;
}

}  // namespace

PcapFile::PcapFile(std::filesystem::path file)
    : path_(std::move(file)), file_(path_, std::ios::binary | std::ios::trunc) {
  Write(LittleEndian({kMagic, kVersion, 0, 0, kLongestPacket, kRawIp}));
  if (!error_.empty()) {
    throw platform::Failure(platform::ErrorNumber::PathFileAccess, "HartLinks.PcapFile", error_);
  }
}

void PcapFile::OnOpened(const Flow& flow, Direction sent) {
  const Direction back = sent == Direction::Sent ? Direction::Received : Direction::Sent;
  std::erase_if(connections_, [&](const Connection& old) { return old.flow == flow; });
  Connection& connection = Find(flow);
  WriteSegment(connection, sent, kTcpSyn, {});
  WriteSegment(connection, back, kTcpSyn | kTcpAck, {});
  WriteSegment(connection, sent, kTcpAck, {});
}

void PcapFile::OnClosed(const Flow& flow) {
  Connection& connection = Find(flow);
  WriteSegment(connection, Direction::Sent, kTcpFin | kTcpAck, {});
  WriteSegment(connection, Direction::Received, kTcpFin | kTcpAck, {});
  WriteSegment(connection, Direction::Sent, kTcpAck, {});
  std::erase_if(connections_, [&](const Connection& old) { return old.flow == flow; });
}

void PcapFile::OnBytes(const Flow& flow, Direction direction, Bytes bytes) {
  if (flow.transport == Transport::Tcp) {
    return WriteSegment(Find(flow), direction, kTcpPush | kTcpAck, bytes);
  }
  const bool isSent = direction == Direction::Sent;
  WritePacket(isSent ? UdpPacket(flow.local, flow.peer, bytes)
                     : UdpPacket(flow.peer, flow.local, bytes));
}

PcapFile::Connection& PcapFile::Find(const Flow& flow) {
  const auto at = std::find_if(connections_.begin(), connections_.end(),
                               [&](const Connection& other) { return other.flow == flow; });
  if (at != connections_.end()) return *at;
  return connections_.emplace_back(Connection{flow, kFirstSent, kFirstReceived});
}

void PcapFile::WriteSegment(Connection& connection, Direction direction, int flags, Bytes bytes) {
  const bool isSent = direction == Direction::Sent;
  std::uint32_t& own = isSent ? connection.sent : connection.received;
  const std::uint32_t other = isSent ? connection.received : connection.sent;
  const TcpPosition position{own, (flags & kTcpAck) != 0 ? other : 0};
  const Flow& flow = connection.flow;
  WritePacket(isSent ? TcpPacket(flow.local, flow.peer, position, flags, bytes)
                     : TcpPacket(flow.peer, flow.local, position, flags, bytes));
  // The beginning and the end of a connection count as a byte each.
  own += static_cast<std::uint32_t>(bytes.size()) + ((flags & (kTcpSyn | kTcpFin)) != 0 ? 1 : 0);
}

void PcapFile::WritePacket(const std::vector<std::uint8_t>& packet) {
  const auto time = platform::Current().GetClock().WallTime().time_since_epoch();
  const auto micros = std::chrono::duration_cast<std::chrono::microseconds>(time).count();
  const auto size = static_cast<std::uint32_t>(packet.size());
  std::vector<std::uint8_t> record =
      LittleEndian({static_cast<std::uint32_t>(micros / 1'000'000),
                    static_cast<std::uint32_t>(micros % 1'000'000), size, size});
  record.insert(record.end(), packet.begin(), packet.end());
  Write(record);
}

void PcapFile::Write(const std::vector<std::uint8_t>& bytes) {
  if (!error_.empty()) return;
  file_.write(reinterpret_cast<const char*>(bytes.data()),
              static_cast<std::streamsize>(bytes.size()));
  file_.flush();
  if (!file_) error_ = "Cannot write the packets to " + path_.string();
}

}  // namespace HartLinks
