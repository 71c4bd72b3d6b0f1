#include "hart/HartIpMessage.h"

#include <algorithm>
#include <string>

#include "types/Failure.h"

namespace ZAFHartTypes::hart {
namespace {

constexpr std::size_t kSequenceAt = 4;
constexpr std::size_t kByteCountAt = 6;
constexpr std::size_t kSessionSize = 5;  // master type, inactivity time

std::size_t ByteCount(Bytes header) {
  return ReadUnsigned(header.subspan(kByteCountAt, 2));
}

// What is wrong with a whole header.
HartIpFault HeaderFault(Bytes header) {
  if (header[0] != kHartIpVersion) return HartIpFault::Version;
  const std::size_t count = ByteCount(header);
  return count < kHartIpHeaderSize || count > kHartIpMaxSize ? HartIpFault::ByteCount
                                                             : HartIpFault::None;
}

// REQUIRES: `bytes` holds the whole header.
HartIpMessage ReadMessage(Bytes bytes) {
  const std::size_t end = std::clamp(ByteCount(bytes), kHartIpHeaderSize, bytes.size());
  const Bytes body = bytes.subspan(kHartIpHeaderSize, end - kHartIpHeaderSize);
  return {static_cast<HartIpType>(bytes[1]),
          static_cast<HartIpId>(bytes[2]),
          bytes[3],
          static_cast<std::uint16_t>(ReadUnsigned(bytes.subspan(kSequenceAt, 2))),
          {body.begin(), body.end()}};
}

}  // namespace

std::vector<std::uint8_t> EncodeHartIp(const HartIpMessage& message) {
  const std::size_t size = kHartIpHeaderSize + message.body.size();
  if (size > kHartIpMaxSize) {
    throw Failure(ErrorNumber::InvalidArgument, "hart.EncodeHartIp",
                  "A HART-IP message has " + std::to_string(kHartIpMaxSize) +
                      " bytes at most, not " + std::to_string(size) + ".");
  }
  std::vector<std::uint8_t> bytes(size);
  const WritableBytes room(bytes);
  bytes[0] = kHartIpVersion;
  bytes[1] = static_cast<std::uint8_t>(message.type);
  bytes[2] = static_cast<std::uint8_t>(message.id);
  bytes[3] = message.status;
  WriteUnsigned(room.subspan(kSequenceAt, 2), message.sequence);
  WriteUnsigned(room.subspan(kByteCountAt, 2), static_cast<std::uint32_t>(size));
  std::copy(message.body.begin(), message.body.end(), bytes.begin() + kHartIpHeaderSize);
  return bytes;
}

std::string_view FaultText(HartIpFault fault) {
  switch (fault) {
    case HartIpFault::None:
      return "";
    case HartIpFault::TooShort:
      return "the message is not whole";
    case HartIpFault::Version:
      return "the message is of another version";
    case HartIpFault::ByteCount:
      return "the message has an impossible byte count";
    case HartIpFault::Surplus:
      return "the message goes on after its byte count";
  }
  return "";
}

DecodedHartIp DecodeHartIp(Bytes datagram) {
  if (datagram.size() < kHartIpHeaderSize) return {HartIpFault::TooShort, {}};
  DecodedHartIp decoded{HeaderFault(datagram), ReadMessage(datagram)};
  const std::size_t count = ByteCount(datagram);
  if (decoded.IsGood() && count > datagram.size()) decoded.fault = HartIpFault::TooShort;
  if (decoded.IsGood() && count < datagram.size()) decoded.fault = HartIpFault::Surplus;
  return decoded;
}

std::vector<DecodedHartIp> HartIpStream::Receive(Bytes bytes) {
  std::vector<DecodedHartIp> found;
  while (!broken_) {
    // Only what belongs to the message under way is kept.
    const std::size_t wanted =
        pending_.size() < kHartIpHeaderSize ? kHartIpHeaderSize : ByteCount(pending_);
    const std::size_t count = std::min(bytes.size(), wanted - pending_.size());
    pending_.insert(pending_.end(), bytes.begin(),
                    bytes.begin() + static_cast<std::ptrdiff_t>(count));
    bytes = bytes.subspan(count);
    if (pending_.size() < kHartIpHeaderSize) break;
    broken_ = HeaderFault(pending_) != HartIpFault::None;
    if (!broken_ && pending_.size() < ByteCount(pending_)) {
      if (bytes.empty()) break;
      continue;
    }
    found.push_back(DecodeHartIp(pending_));
    pending_.clear();
  }
  return found;
}

std::vector<std::uint8_t> EncodeSession(const HartIpSession& session) {
  const auto time = session.inactivityClose.count();
  if (time < 0 || time > UINT32_MAX) {
    throw Failure(ErrorNumber::Overflow, "hart.EncodeSession",
                  std::to_string(time) + " ms do not fit 4 bytes.");
  }
  std::vector<std::uint8_t> body(kSessionSize);
  body[0] = session.primaryMaster ? 1 : 0;
  WriteUnsigned(WritableBytes(body).subspan(1), static_cast<std::uint32_t>(time));
  return body;
}

std::optional<HartIpSession> DecodeSession(Bytes body) {
  if (body.size() < kSessionSize || body[0] > 1) return std::nullopt;
  return HartIpSession{body[0] == 1, std::chrono::milliseconds(ReadUnsigned(body.subspan(1, 4)))};
}

}  // namespace ZAFHartTypes::hart
