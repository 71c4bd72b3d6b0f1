#pragma once

#include <cstdint>
#include <string>

#include "ddobjects/ByteBuffer.h"
#include "ddobjects/ResponseCode.h"

namespace ZAFHartLib {

// Error values of a transaction beside the plain codes.
inline constexpr std::int32_t kNoReplyError = -1;
inline constexpr std::int32_t kDeviceBusyError = 32;
inline constexpr std::int32_t kDefinedError = 0x100000;

// How an executed transaction ended, as one number and one (multilingual) text.
struct ResponseVerdict {
  // 0: success or a warning; -1: no reply; communication error flags (1 when only bit 7 is set); 32
  // or 0x100000: a response code that the DD defines as an error; else the undefined code itself.
  std::int32_t error = 0;
  std::string message;  // "" for response code 0
};

// `lastResult` is the wrapper's: not 0 without a response code means that there was no reply,
// whatever the communication byte says. Codes of the transaction come before those of the command.
ResponseVerdict ClassifyResponse(const ZAFHartTypes::CommandStatus& status, std::int32_t lastResult,
                                 const ZAFHartTypes::ResponseCodeList& transactionCodes,
                                 const ZAFHartTypes::ResponseCodeList& commandCodes);

// No reply came: there is no response code and the wrapper reports a failure.
bool HadNoReply(const ZAFHartTypes::CommandStatus& status, std::int32_t lastResult);

}  // namespace ZAFHartLib
