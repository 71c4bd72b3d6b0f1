#include "hart/LinkFrame.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <string>

#include "hart/StatusBytes.h"
#include "types/Failure.h"

namespace ZAFHartTypes::hart {
namespace {

constexpr std::uint8_t kLongAddressBit = 0x80;  // of the delimiter
constexpr unsigned kExpansionShift = 5;
constexpr std::uint8_t kExpansionMask = 0x03;
constexpr std::uint8_t kPhysicalLayerMask = 0x18;  // 0: asynchronous
constexpr std::uint8_t kTypeMask = 0x07;
constexpr std::uint8_t kPrimaryBit = 0x80;  // of the first address byte
constexpr std::uint8_t kBurstBit = 0x40;
constexpr std::uint8_t kAddressMask = 0x3F;
constexpr std::size_t kMaxExpansion = 3;

void Require(bool holds, const char* source, const std::string& description) {
  if (!holds) throw Failure(ErrorNumber::InvalidArgument, source, description);
}

std::size_t AddressSize(bool isLong) {
  return isLong ? 5 : 1;
}

std::size_t ExpansionSize(std::uint8_t delimiter) {
  return (delimiter >> kExpansionShift) & kExpansionMask;
}

// Where the extended number stands in the data of a frame of this type.
std::size_t ExtendedNumberAt(FrameType type) {
  return type == FrameType::Request ? 0 : kStatusSize;
}

bool HasExtendedNumber(const LinkFrame& frame) {
  return frame.command == kExtendedCommand &&
         frame.data.size() >= ExtendedNumberAt(frame.type) + kExtendedNumberSize;
}

void CheckEncodable(const LinkFrame& frame) {
  constexpr const char* source = "hart.EncodeFrame";
  Require(frame.data.size() <= kMaxFrameData, source,
          "A frame holds 255 data bytes, not " + std::to_string(frame.data.size()) + ".");
  Require(frame.expansion.size() <= kMaxExpansion, source,
          "A frame holds 3 expansion bytes, not " + std::to_string(frame.expansion.size()) + ".");
  Require(frame.address.bytes[0] <= kAddressMask, source,
          "The two high bits of an address byte belong to master and burst mode.");
}

// REQUIRES: `bytes` holds the whole header.
void ReadHeader(Bytes bytes, LinkFrame& frame) {
  frame.type = static_cast<FrameType>(bytes[0] & kTypeMask);
  frame.address.isLong = (bytes[0] & kLongAddressBit) != 0;
  frame.primaryMaster = (bytes[1] & kPrimaryBit) != 0;
  frame.burst = (bytes[1] & kBurstBit) != 0;
  const Bytes address = bytes.subspan(1, AddressSize(frame.address.isLong));
  std::copy(address.begin(), address.end(), frame.address.bytes.begin());
  frame.address.bytes[0] &= kAddressMask;
  const Bytes expansion = bytes.subspan(1 + address.size(), ExpansionSize(bytes[0]));
  frame.expansion.assign(expansion.begin(), expansion.end());
  frame.command = bytes[HeaderSize(bytes[0]) - 2];
}

}  // namespace

LinkAddress LinkAddress::Polling(std::uint8_t address) {
  Require(address <= kMaxPolling, "hart.LinkAddress",
          "A polling address is 0 to 63, not " + std::to_string(address) + ".");
  return {false, {address}};
}

LinkAddress LinkAddress::Unique(std::span<const std::uint8_t, 5> bytes) {
  LinkAddress address{true, {}};
  std::copy(bytes.begin(), bytes.end(), address.bytes.begin());
  address.bytes[0] &= kAddressMask;
  return address;
}

std::uint16_t LinkFrame::CommandNumber() const {
  if (!HasExtendedNumber(*this)) return command;
  const Bytes number = Bytes(data).subspan(ExtendedNumberAt(type), kExtendedNumberSize);
  return static_cast<std::uint16_t>(ReadUnsigned(number));
}

std::vector<std::uint8_t> LinkFrame::ExchangeData() const {
  std::vector<std::uint8_t> plain = data;
  if (HasExtendedNumber(*this)) {
    const auto at = plain.begin() + static_cast<std::ptrdiff_t>(ExtendedNumberAt(type));
    plain.erase(at, at + static_cast<std::ptrdiff_t>(kExtendedNumberSize));
  }
  return plain;
}

LinkFrame RequestFrame(std::uint16_t number, const LinkAddress& address, bool primaryMaster,
                       Bytes data) {
  LinkFrame frame;
  frame.address = address;
  frame.primaryMaster = primaryMaster;
  frame.command = static_cast<std::uint8_t>(number);
  if (number > 0xFF) {
    frame.command = kExtendedCommand;
    frame.data.resize(kExtendedNumberSize);
    WriteUnsigned(frame.data, number);
  }
  frame.data.insert(frame.data.end(), data.begin(), data.end());
  Require(frame.data.size() <= kMaxFrameData, "hart.RequestFrame",
          std::to_string(data.size()) + " data bytes do not fit into command " +
              std::to_string(number) + ".");
  return frame;
}

LinkFrame ReplyFrame(const LinkFrame& request, Bytes statusAndData) {
  LinkFrame frame;
  frame.type = FrameType::Reply;
  frame.address = request.address;
  frame.primaryMaster = request.primaryMaster;
  frame.command = request.command;
  frame.data.assign(statusAndData.begin(), statusAndData.end());
  if (HasExtendedNumber(request) && frame.data.size() >= kStatusSize) {
    frame.data.insert(frame.data.begin() + kStatusSize, request.data.begin(),
                      request.data.begin() + kExtendedNumberSize);
  }
  Require(frame.data.size() <= kMaxFrameData, "hart.ReplyFrame",
          std::to_string(statusAndData.size()) + " bytes do not fit into a reply to command " +
              std::to_string(request.CommandNumber()) + ".");
  return frame;
}

bool Answers(const LinkFrame& frame, const LinkFrame& request) {
  return frame.type == FrameType::Reply && frame.address == request.address &&
         frame.primaryMaster == request.primaryMaster && frame.command == request.command &&
         (!HasExtendedNumber(frame) || frame.CommandNumber() == request.CommandNumber());
}

std::vector<std::uint8_t> EncodeFrame(const LinkFrame& frame) {
  CheckEncodable(frame);
  const Bytes address(frame.address.bytes.data(), AddressSize(frame.address.isLong));
  std::vector<std::uint8_t> bytes;
  bytes.reserve(1 + address.size() + frame.expansion.size() + 2 + frame.data.size() + 1);
  bytes.push_back(static_cast<std::uint8_t>((frame.address.isLong ? kLongAddressBit : 0U) |
                                            (frame.expansion.size() << kExpansionShift) |
                                            static_cast<unsigned>(frame.type)));
  bytes.insert(bytes.end(), address.begin(), address.end());
  bytes[1] = static_cast<std::uint8_t>(bytes[1] | (frame.primaryMaster ? kPrimaryBit : 0U) |
                                       (frame.burst ? kBurstBit : 0U));
  bytes.insert(bytes.end(), frame.expansion.begin(), frame.expansion.end());
  bytes.push_back(frame.command);
  bytes.push_back(static_cast<std::uint8_t>(frame.data.size()));
  bytes.insert(bytes.end(), frame.data.begin(), frame.data.end());
  bytes.push_back(CheckByte(bytes));
  return bytes;
}

std::vector<std::uint8_t> WithPreambles(Bytes frame, int preambles) {
  Require(preambles >= kMinPreambles && preambles <= kMaxPreambles, "hart.WithPreambles",
          "A frame has 2 to 20 preambles, not " + std::to_string(preambles) + ".");
  const auto count = static_cast<std::size_t>(preambles);
  std::vector<std::uint8_t> bytes(count + frame.size(), kPreamble);
  std::copy(frame.begin(), frame.end(), bytes.begin() + preambles);
  return bytes;
}

std::uint8_t CheckByte(Bytes bytes) {
  return std::accumulate(bytes.begin(), bytes.end(), std::uint8_t{0}, std::bit_xor<>());
}

std::string_view FaultText(FrameFault fault) {
  switch (fault) {
    case FrameFault::None:
      return "";
    case FrameFault::TooShort:
      return "the frame ends before its check byte";
    case FrameFault::Delimiter:
      return "the frame begins with no delimiter";
    case FrameFault::ByteCount:
      return "the reply has no status bytes";
    case FrameFault::CheckByte:
      return "the check byte is wrong";
    case FrameFault::Surplus:
      return "the frame goes on after its check byte";
    case FrameFault::ReceiveError:
      return "a byte was received with wrong parity or framing";
  }
  return "";
}

DecodedFrame DecodeFrame(Bytes bytes) {
  const auto start =
      std::find_if(bytes.begin(), bytes.end(), [](std::uint8_t b) { return b != kPreamble; });
  const Bytes pdu(start, bytes.end());
  if (pdu.empty()) return {FrameFault::TooShort, {}};
  if (!IsDelimiter(pdu[0])) return {FrameFault::Delimiter, {}};
  const std::size_t size = FrameSize(pdu).value_or(pdu.size());
  DecodedFrame decoded = DecodeStart(pdu.first(std::min(size, pdu.size())));
  if (decoded.IsGood() && pdu.size() > size) decoded.fault = FrameFault::Surplus;
  return decoded;
}

bool IsDelimiter(std::uint8_t byte) {
  if ((byte & kPhysicalLayerMask) != 0) return false;
  const auto type = static_cast<FrameType>(byte & kTypeMask);
  return type == FrameType::Burst || type == FrameType::Request || type == FrameType::Reply;
}

std::size_t HeaderSize(std::uint8_t delimiter) {
  const bool isLong = (delimiter & kLongAddressBit) != 0;
  return 1 + AddressSize(isLong) + ExpansionSize(delimiter) + 2;
}

std::optional<std::size_t> FrameSize(Bytes start) {
  if (start.empty() || start.size() < HeaderSize(start[0])) return std::nullopt;
  const std::size_t header = HeaderSize(start[0]);
  return header + start[header - 1] + 1;
}

DecodedFrame DecodeStart(Bytes start) {
  DecodedFrame decoded{FrameFault::TooShort, {}};
  const std::optional<std::size_t> size = FrameSize(start);
  if (!size) return decoded;
  LinkFrame& frame = decoded.frame;
  ReadHeader(start, frame);
  const std::size_t header = HeaderSize(start[0]);
  const std::size_t count = start[header - 1];
  const Bytes data = start.subspan(header, std::min(count, start.size() - header));
  frame.data.assign(data.begin(), data.end());
  if (frame.type != FrameType::Request && count < kStatusSize) {
    decoded.fault = FrameFault::ByteCount;
  } else if (start.size() == *size) {
    const bool right = CheckByte(start.first(*size - 1)) == start.back();
    decoded.fault = right ? FrameFault::None : FrameFault::CheckByte;
  }
  return decoded;
}

}  // namespace ZAFHartTypes::hart
