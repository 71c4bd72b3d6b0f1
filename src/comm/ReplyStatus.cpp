#include "comm/ReplyStatus.h"

#include "hart/StatusBytes.h"
#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"

namespace ZAFHartLib {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::CommandStatus;
using ZAFHartTypes::ResponseCodeList;

namespace {

std::string ResponseText(std::uint8_t code, const ResponseCodeList& codes) {
  const ZAFHartTypes::ResponseCode* defined = codes.Find(code);
  if (defined && !defined->Description().empty()) return defined->Description();
  const bool isBusy = (code & hart::kBusy) != 0;
  const std::string& text = ResText(isBusy ? idDeviceBusy : idResponseCodeEntry + code);
  return text.empty() ? ResText(idSpecificError) : text;
}

ReplyError CommunicationError(std::uint8_t flags) {
  return {kReplyErrorBase + flags, ResText(idCommStatusEntry)};
}

}  // namespace

CommandStatus SplitStatus(std::span<const std::uint8_t> reply) {
  if (hart::IsCommunicationError(reply[0])) return {0, reply[0], reply[1]};
  return {reply[0], 0, reply[1]};
}

std::optional<ReplyError> ErrorOf(const CommandStatus& status, const ResponseCodeList& codes) {
  if (status.responseCode != 0) {
    return ReplyError{kReplyErrorBase + status.responseCode,
                      ResponseText(status.responseCode, codes)};
  }
  if (status.communication != 0) return CommunicationError(status.communication);
  return std::nullopt;
}

ReplyError MissingBytesError() {
  return CommunicationError(hart::kCommunicationError);
}

}  // namespace ZAFHartLib
