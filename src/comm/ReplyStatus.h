#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "ddobjects/ByteBuffer.h"
#include "ddobjects/ResponseCode.h"
#include "platform/Export.h"

namespace ZAFHartLib {

// Status of an exchange that got no reply: vertical parity and framing flags that no device sends.
inline constexpr ZAFHartTypes::CommandStatus kNoReplyStatus{0, 144, 0};

// Added to a response code or a communication error byte: the error number of a reply.
inline constexpr std::int32_t kReplyErrorBase = 0x100000;

// What a reply records on its variables.
struct ReplyError {
  std::int32_t number = 0;  // ErrorIndex of the variables: kReplyErrorBase + status byte
  std::string text;         // multilingual
};

// Takes the first two bytes of a reply apart: with bit 7 set, the first is a communication error
// byte, otherwise a response code. `reply` has at least two bytes.
ZAF_API ZAFHartTypes::CommandStatus SplitStatus(std::span<const std::uint8_t> reply);

// The error of a status; nothing when there is none. The text of a response code comes from `codes`
// (any type of code, warnings too), else from the string table.
ZAF_API std::optional<ReplyError> ErrorOf(const ZAFHartTypes::CommandStatus& status,
                                          const ZAFHartTypes::ResponseCodeList& codes);

// The error of a variable whose bytes are missing in a reply that reports success.
ZAF_API ReplyError MissingBytesError();

}  // namespace ZAFHartLib
