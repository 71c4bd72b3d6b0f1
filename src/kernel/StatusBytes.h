#pragma once

#include "ddobjects/ByteBuffer.h"
#include "ddobjects/Transaction.h"

namespace ZAFHartLib {

// Reply items 1 and 2 of an execution that had no reply: a communication error that no device
// sends, so that a write is never taken for done.
inline constexpr std::uint8_t kNoReplyByte = 144;

// The first two reply bytes as they stand in the items of an executed transaction: 1 response code
// (or communication error flags), 2 field device status. 0 for an absent item and for a value that
// is no byte.
struct ReplyBytes {
  std::uint8_t first = 0;
  std::uint8_t second = 0;
};
ReplyBytes ReplyBytesOf(const ZAFHartTypes::Transaction& transaction);

// First byte with bit 7 set: communication error flags, no response code. Clear: a response code
// and no communication error.
ZAFHartTypes::CommandStatus StatusFromReply(ReplyBytes bytes);

}  // namespace ZAFHartLib
