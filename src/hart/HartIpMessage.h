#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "hart/Numbers.h"
#include "platform/Export.h"

// Messages of HART-IP version 1, the same over UDP and TCP: a header of 8 bytes (version, type, id,
// status, sequence number, byte count with the header included), and a body.
namespace ZAFHartTypes::hart {

inline constexpr std::uint16_t kHartIpPort = 5094;  // UDP and TCP
inline constexpr std::uint8_t kHartIpVersion = 1;
inline constexpr std::size_t kHartIpHeaderSize = 8;  // bytes
// No body is near that long: a longer byte count is none.
inline constexpr std::size_t kHartIpMaxSize = 1500;

// Messages of other types and ids are taken apart like these.
enum class HartIpType : std::uint8_t { Request = 0, Response = 1, Publish = 2, Nak = 15 };
// What a message is about. A response has the id of its request.
enum class HartIpId : std::uint8_t {
  SessionInitiate = 0,  // the body is a HartIpSession
  SessionClose = 1,     // without a body, like the next
  KeepAlive = 2,
  TokenPassing = 3,  // the body is a frame from delimiter to check byte
};

// Status of the answer to a session initiate. Warnings grant the session all the same.
enum HartIpStatus : std::uint8_t {
  kHartIpSuccess = 0,
  kHartIpInvalidMaster = 2,
  kHartIpTooFewBytes = 5,
  kHartIpNearestTime = 8,  // warning: the inactivity time was set to the nearest possible one
  kHartIpVersionNotSupported = 14,
  kHartIpAllSessionsInUse = 15,
  kHartIpAccessRestricted = 16,
};

// One message; its version and byte count follow from the rest.
struct HartIpMessage {
  HartIpType type = HartIpType::Request;
  HartIpId id = HartIpId::KeepAlive;
  std::uint8_t status = kHartIpSuccess;  // a HartIpStatus in answers; 0 in requests
  std::uint16_t sequence = 0;            // an answer has its request's
  std::vector<std::uint8_t> body;

  friend bool operator==(const HartIpMessage&, const HartIpMessage&) = default;
};

// Raises InvalidArgument for a body that makes the message longer than kHartIpMaxSize.
ZAF_API std::vector<std::uint8_t> EncodeHartIp(const HartIpMessage& message);

// What is wrong with received bytes.
enum class HartIpFault : std::uint8_t {
  None,
  TooShort,   // ends before its header or its body does
  Version,    // of another protocol version
  ByteCount,  // below the header's or above kHartIpMaxSize
  Surplus,    // goes on after its byte count
};
// For messages: "the message is of another version"; "" for None.
ZAF_API std::string_view FaultText(HartIpFault fault);

// A message that was received, or what there is of one.
struct DecodedHartIp {
  HartIpFault fault = HartIpFault::None;
  // With a fault: the header and what there is of the body, for an answer that tells the peer;
  // nothing when the header is not whole.
  HartIpMessage message;

  bool IsGood() const { return fault == HartIpFault::None; }
};

// Takes one datagram apart. EncodeHartIp gives the bytes of a good one again.
ZAF_API DecodedHartIp DecodeHartIp(Bytes datagram);

// Puts the messages of a TCP connection together. Keeps no more than one of them.
class ZAF_API HartIpStream {
 public:
  // The messages that end in these bytes. The first fault (version or byte count) is the last of
  // them: no message can be found behind it, and the connection is to be closed.
  std::vector<DecodedHartIp> Receive(Bytes bytes);
  // A fault was found; what comes is no longer looked at.
  bool IsBroken() const { return broken_; }

 private:
  std::vector<std::uint8_t> pending_;
  bool broken_ = false;
};

// Body of a session initiate: what the client asks for, and what the server grants.
struct HartIpSession {
  bool primaryMaster = true;  // else the secondary one
  // The server closes a session that is silent for this long. Whole milliseconds of 32 bits.
  std::chrono::milliseconds inactivityClose{0};

  friend bool operator==(const HartIpSession&, const HartIpSession&) = default;
};
// Raises Overflow for a time that 32 bits do not hold.
ZAF_API std::vector<std::uint8_t> EncodeSession(const HartIpSession& session);
// Nothing for a body of fewer than 5 bytes or a master that is neither primary (1) nor secondary
// (0); further bytes are left alone.
ZAF_API std::optional<HartIpSession> DecodeSession(Bytes body);

}  // namespace ZAFHartTypes::hart
