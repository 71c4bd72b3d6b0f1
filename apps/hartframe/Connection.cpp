#include "hartframe/Connection.h"

#include "hartframe/ExitCode.h"
#include "linksim/EchoLink.h"

namespace hartframe {

namespace {

using HartLinkSim::EmulatedDevice;
using HartLinkSim::SimulatedLink;
using platform::Failure;

std::shared_ptr<SimulatedLink> MakeDeviceLink(const std::filesystem::path& file) {
  const auto device = std::make_shared<EmulatedDevice>();
  try {
    if (!file.empty()) device->UseFile(file);
  } catch (const Failure& failure) {
    throw CommandFailure(ExitCode::FileBroken, failure.Description());
  }
  return std::make_shared<DeviceConnection>(device);
}

void AddFaults(SimulatedLink& link, const Options& options) {
  try {
    for (const std::string& fault : options.faults) link.LinkFaults().Add(fault);
  } catch (const Failure& failure) {
    throw CommandFailure(ExitCode::Usage, failure.Description());
  }
  if (options.latencyMilliseconds > 0) {
    link.LinkFaults().Add({HartLinkSim::FaultKind::Latency, options.latencyMilliseconds, {}});
  }
}

}  // namespace

std::optional<DeviceConnection::Reply> DeviceConnection::Answer(
    const ZAFHartTypes::Exchange& exchange) {
  auto reply = DeviceLink::Answer(exchange);
  if (!Device()->LastError().empty()) fileErrors_.insert(Device()->LastError());
  return reply;
}

std::shared_ptr<SimulatedLink> MakeLink(const Options& options) {
  std::shared_ptr<SimulatedLink> link;
  if (options.link == LinkKind::Echo)
    link = std::make_shared<HartLinkSim::EchoLink>();
  else
    link = MakeDeviceLink(options.deviceFile);
  AddFaults(*link, options);
  return link;
}

}  // namespace hartframe
