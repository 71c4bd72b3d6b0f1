#include "comm/ConnectionTexts.h"
#include "comm/DeviceSearch.h"
#include "hart/LinkFrame.h"
#include "hart/StatusBytes.h"
#include "hartframe/link/DirectLink.h"
#include "hartframe/link/LinkCommands.h"
#include "hartframe/link/LinkTexts.h"

namespace hartframe {

namespace {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::Addressing;

constexpr int kReadIdentity = 0;  // HART command 0, the one that a polling address does for

[[noreturn]] void Fail(const std::string& text, const Speech& say) {
  throw CommandFailure(ExitCode::Communication, say.Pick(text));
}

// The long address of the device at a polling address or of a tag.
std::string LookUp(DirectLink& link, const DeviceAddress& address, const Speech& say) {
  const ZAFHartLib::DeviceTarget target{address.addressing, address.polling, address.tag, ""};
  ZAFHartLib::DeviceSearch search(target, "", 1);
  while (const auto exchange = search.Next()) {
    link.Send(exchange);
    search.Take(*exchange);
  }
  if (!search.Found()) {
    Fail(ZAFHartLib::NotFoundText(search, target.Text(), link.Way().LastError()), say);
  }
  return search.Found()->LongAddress();
}

// Command 31 carries the number of another one in its data.
int CommandNumber(const Options& options) {
  const auto& data = options.rawData;
  const bool isExtended =
      options.rawCommand == hart::kExtendedCommand && data.size() >= hart::kExtendedNumberSize;
  return isExtended ? data[0] << 8 | data[1] : options.rawCommand;
}

ExitCode CodeOf(const RawReply& reply) {
  if (hart::IsCommunicationError(reply.bytes[0])) return ExitCode::Communication;
  return hart::IsCarriedOut(reply.bytes[0]) ? ExitCode::Ok : ExitCode::DeviceRefused;
}

}  // namespace

ExitCode RunRaw(const Options& options, const Speech& say, Report& report) {
  if (options.userLevel == ZAFHartTypes::UserLevel::Observer)
    throw CommandFailure(ExitCode::NotAllowed, say(texts::kObserverRaw));
  DirectLink link(options);
  DirectLink::Request request{options.rawCommand, options.address.polling,
                              options.address.longAddress, options.rawData};
  const bool isPolled = options.address.addressing == Addressing::PollingAddress;
  const bool isComplete =
      !request.longAddress.empty() || (isPolled && options.rawCommand == kReadIdentity);
  if (!isComplete) request.longAddress = LookUp(link, options.address, say);
  const std::string address =
      request.longAddress.empty() ? std::to_string(request.pollingAddress) : request.longAddress;
  const auto bytes = link.Ask(request);
  if (!bytes) Fail(ZAFHartLib::NoDeviceText(address, link.Way().LastError()), say);
  const RawReply reply{CommandNumber(options), address, *bytes};
  report.Reply(reply);
  return CodeOf(reply);
}

}  // namespace hartframe
