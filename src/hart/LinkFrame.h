#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "hart/Numbers.h"
#include "platform/Export.h"

// Frames of the HART token-passing data link layer. From the delimiter to the check byte they are
// the same on a modem's line, where preambles go ahead of them, and in HART-IP's messages.
namespace ZAFHartTypes::hart {

// Low three bits of the delimiter.
enum class FrameType : std::uint8_t {
  Burst = 1,    // a device in burst mode, unasked
  Request = 2,  // a master
  Reply = 6,    // a device
};

// Whom a request is for, or whom a reply is from; without the master and the burst bit.
struct ZAF_API LinkAddress {
  static constexpr std::uint8_t kMaxPolling = 63;  // 15 in HART 5

  bool isLong = false;  // the unique address; else a polling address
  // Short: the first byte is the polling address. Long: the unique address, 38 bits.
  std::array<std::uint8_t, 5> bytes{};

  // Raises InvalidArgument above kMaxPolling.
  static LinkAddress Polling(std::uint8_t address);
  // The two high bits of the first byte are no part of the address and are cleared.
  static LinkAddress Unique(std::span<const std::uint8_t, 5> bytes);

  friend bool operator==(const LinkAddress&, const LinkAddress&) = default;
};

// One frame without preambles, byte count and check byte, which follow from the rest.
struct ZAF_API LinkFrame {
  FrameType type = FrameType::Request;
  LinkAddress address;
  bool primaryMaster = true;  // the master that asks or is answered; else the secondary one
  bool burst = false;         // the device is in burst mode
  std::vector<std::uint8_t> expansion;  // 0 to 3 bytes between address and command
  std::uint8_t command = 0;             // as on the wire
  std::vector<std::uint8_t> data;       // as on the wire: a device's begin with two status bytes

  // The command's number, which command 31 carries in its data; 31 when they hold none.
  std::uint16_t CommandNumber() const;
  // The data without that extended number: what an exchange carries. Those of a device keep their
  // status bytes.
  std::vector<std::uint8_t> ExchangeData() const;

  friend bool operator==(const LinkFrame&, const LinkFrame&) = default;
};

// Command whose data hold a 16-bit command number: first in a request, after the status bytes in a
// reply.
inline constexpr std::uint8_t kExtendedCommand = 31;
inline constexpr std::size_t kExtendedNumberSize = 2;  // bytes
inline constexpr std::size_t kMaxFrameData = 255;      // bytes that the byte count can tell
// Delimiter, long address, expansion bytes, command, byte count, data, check byte.
inline constexpr std::size_t kMaxFrameSize = 1 + 5 + 3 + 1 + 1 + kMaxFrameData + 1;
inline constexpr std::uint8_t kPreamble = 0xFF;
inline constexpr int kMinPreambles = 2;   // that a receiver must have seen
inline constexpr int kMaxPreambles = 20;  // that anybody sends

// A master's request; a number above 255 goes out as command 31. `data` is without the extended
// number. Raises InvalidArgument for more data than fit.
ZAF_API LinkFrame RequestFrame(std::uint16_t number, const LinkAddress& address, bool primaryMaster,
                               Bytes data);
// A device's answer to `request`, with its address, master and command. `statusAndData` is without
// the extended number. Raises InvalidArgument for more data than fit.
ZAF_API LinkFrame ReplyFrame(const LinkFrame& request, Bytes statusAndData);
// `frame` is the device's answer to `request`: of the same address, master and command. A reply to
// command 31 without an extended number, from a device that does not know it, answers any of them.
ZAF_API bool Answers(const LinkFrame& frame, const LinkFrame& request);

// The bytes from delimiter to check byte. Raises InvalidArgument for more than 255 data bytes, more
// than 3 expansion bytes or an address that is none.
ZAF_API std::vector<std::uint8_t> EncodeFrame(const LinkFrame& frame);
// What a modem sends: `preambles` (2 to 20, else InvalidArgument is raised) and the frame.
ZAF_API std::vector<std::uint8_t> WithPreambles(Bytes frame, int preambles);

// Exclusive or of all bytes: the check byte of what stands before it.
ZAF_API std::uint8_t CheckByte(Bytes bytes);

// What is wrong with received bytes.
enum class FrameFault : std::uint8_t {
  None,
  TooShort,      // ends before its check byte
  Delimiter,     // begins with no delimiter of an asynchronous line
  ByteCount,     // a device's frame without room for its status bytes
  CheckByte,     // the check byte is not that of the bytes before it
  Surplus,       // goes on after its check byte
  ReceiveError,  // a byte was received with wrong parity or framing
};
// For messages: "the check byte is wrong"; "" for None.
ZAF_API std::string_view FaultText(FrameFault fault);

// A frame that was received, or what there is of one.
struct DecodedFrame {
  FrameFault fault = FrameFault::None;
  // With a fault: what was read before it was found, as it came; nothing when the header (delimiter
  // to byte count) is not whole.
  LinkFrame frame;

  bool IsGood() const { return fault == FrameFault::None; }
};

// Takes one whole frame apart; preambles ahead of it are allowed. EncodeFrame gives the bytes of a
// good one again.
ZAF_API DecodedFrame DecodeFrame(Bytes bytes);

// For receivers that meet a frame byte by byte.
ZAF_API bool IsDelimiter(std::uint8_t byte);
// Bytes from delimiter to byte count.
ZAF_API std::size_t HeaderSize(std::uint8_t delimiter);
// Bytes of the whole frame; nothing while its header is not whole. REQUIRES: `start` begins with a
// delimiter.
ZAF_API std::optional<std::size_t> FrameSize(Bytes start);
// Takes apart what has come of a frame. REQUIRES: `start` begins with a delimiter and is no longer
// than the frame.
ZAF_API DecodedFrame DecodeStart(Bytes start);

}  // namespace ZAFHartTypes::hart
