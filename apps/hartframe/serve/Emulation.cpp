#include "hartframe/serve/Emulation.h"

#include <utility>

#include "comm/DtmCatalogue.h"
#include "hart/HexText.h"
#include "hartframe/dataset/DataSet.h"

namespace hartframe {

namespace hart = ZAFHartTypes::hart;
using HartLinkSim::EmulatedDevice;
using HartLinkSim::WireReply;

namespace {

constexpr const char* kPollingAddress = "polling_address";
constexpr const char* kRevision = "universal_revision";
constexpr int kNewestRevision = 7;

// A device whose DTM has no value for it either is one of the newest revision.
void Learn(Session& session, EmulatedDevice& device) {
  session.View().SetShowsProgress(false);
  const auto address = static_cast<std::int32_t>(device.Number(kPollingAddress).value_or(0));
  session.Comm().SetAddressInformation(address, {}, {});
  LoadDataSet(session);
  if (session.Interrupted() || device.Number(kRevision).value_or(0) != 0) return;
  device.SetValue(kRevision, kNewestRevision);
  LoadDataSet(session);
}

std::string AddressText(const hart::LinkAddress& address) {
  return address.isLong ? hart::ToHex(address.bytes) : std::to_string(address.bytes[0]);
}

std::string OrDash(const std::string& text) {
  return text.empty() ? "-" : text;
}

}  // namespace

Emulation::Emulation(Session& session) : session_(session) {
  const auto device = session.Device();
  const Options& options = session.Settings();
  AddFaults(faults_, options);
  if (options.serve.pollingAddress) {
    device->SetValue(kPollingAddress, *options.serve.pollingAddress);
  }
  Learn(session, *device);
  wire_ = std::make_unique<HartLinkSim::WireDevice>(
      device, std::make_shared<ZAFHartLib::DtmCatalogue>(session.Components().shared_from_this()));
}

std::optional<WireReply> Emulation::Answer(const hart::DecodedFrame& request) {
  if (!faults_.IsEmpty() && answered_ >= session_.Settings().serve.sparedRequests)
    wire_->LinkFaults() = std::exchange(faults_, {});
  auto reply = wire_->Answer(request);
  if (reply) ++answered_;
  if (session_.Settings().serve.verbose) TellRequest(request, reply);
  if (const std::string& error = wire_->LastError(); !error.empty() && errors_.insert(error).second)
    session_.Tell().Problem(NameOf(ExitCode::FileBroken), error);
  return reply;
}

void Emulation::TellRequest(const hart::DecodedFrame& request,
                            const std::optional<WireReply>& reply) {
  const std::string command = std::to_string(request.frame.CommandNumber());
  const std::string address = AddressText(request.frame.address);
  const std::string data = hart::ToHex(request.frame.ExchangeData());
  const std::string fault(hart::FaultText(request.fault));
  const std::string answer =
      reply ? hart::ToHex(hart::DecodeFrame(reply->frame).frame.ExchangeData()) : "";
  std::string line = address + "  " + command + "  " + OrDash(data) + "  >  " + OrDash(answer);
  if (!fault.empty()) line += "  (" + fault + ")";
  const Fact facts[] = {{"address", "", address},
                        {"command", "", command},
                        {"data", "", data},
                        {"fault", "", fault},
                        {"reply", "", answer}};
  session_.Tell().Event("request", line, facts);
}

}  // namespace hartframe
