#include "kernel/ResponseClassification.h"

#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

constexpr unsigned kErrorFlagBits = 7;  // bits 0 to 6; bit 7 marks the byte as error flags

std::int32_t DefinedError(const ResponseCode& code) {
  if (!IsError(code.CodeType())) return 0;
  return code.Value() == kDeviceBusyError ? kDeviceBusyError : kDefinedError;
}

ResponseVerdict OfResponseCode(std::uint8_t value, const ResponseCodeList& transactionCodes,
                               const ResponseCodeList& commandCodes) {
  const ResponseCode* code = transactionCodes.Find(value);
  if (!code) code = commandCodes.Find(value);
  if (code) return {DefinedError(*code), code->Description() + ":" + code->Help()};
  const std::string& standardText = ResText(idResponseCodeEntry + value);
  return {value, standardText.empty() ? ResText(idSpecificError) : standardText};
}

ResponseVerdict OfCommunicationError(std::uint8_t flags) {
  for (unsigned bit = 0; bit < kErrorFlagBits; ++bit) {
    if (((flags >> bit) & 1U) != 0) {
      return {flags, ResText(idCommStatusEntry + static_cast<std::int32_t>(bit))};
    }
  }
  return {flags >> kErrorFlagBits, ResText(idCommStatusEntry)};
}

}  // namespace

bool HadNoReply(const CommandStatus& status, std::int32_t lastResult) {
  return lastResult != 0 && status.responseCode == 0;
}

ResponseVerdict ClassifyResponse(const CommandStatus& status, std::int32_t lastResult,
                                 const ResponseCodeList& transactionCodes,
                                 const ResponseCodeList& commandCodes) {
  if (HadNoReply(status, lastResult)) return {kNoReplyError, ResText(idErrNoCommunication)};
  if (status.responseCode != 0) {
    return OfResponseCode(status.responseCode, transactionCodes, commandCodes);
  }
  if (status.communication != 0) return OfCommunicationError(status.communication);
  return {};
}

}  // namespace ZAFHartLib
