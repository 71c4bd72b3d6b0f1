#include "hartframe/Connection.h"

#include "hartframe/ExitCode.h"
#include "links/CapturingLink.h"
#include "links/HartIpLink.h"
#include "links/HartModemLink.h"
#include "linksim/EchoLink.h"

namespace hartframe {

namespace {

using HartLinkSim::EmulatedDevice;
using HartLinkSim::SimulatedLink;
using platform::Failure;

// Runs what raises a Failure, which ends the run with that code.
template <typename Make>
auto EndingWith(ExitCode code, Make&& make) {
  try {
    return make();
  } catch (const Failure& failure) {
    throw CommandFailure(code, failure.Description());
  }
}

std::shared_ptr<EmulatedDevice> MakeDevice(const std::filesystem::path& file) {
  auto device = std::make_shared<EmulatedDevice>();
  if (!file.empty()) EndingWith(ExitCode::FileBroken, [&] { device->UseFile(file); });
  return device;
}

// The link's name with what else the command line says about it.
LinkName CompleteName(const Options& options) {
  LinkName name = *options.givenLink;
  if (options.retries) name.settings["retries"] = std::to_string(*options.retries);
  if (options.busyAttempts) name.settings["busyattempts"] = std::to_string(*options.busyAttempts);
  return name;
}

}  // namespace

std::optional<EmulatedLink::Reply> EmulatedLink::Answer(const ZAFHartTypes::Exchange& exchange) {
  auto reply = DeviceLink::Answer(exchange);
  if (!Device()->LastError().empty()) fileErrors_.insert(Device()->LastError());
  return reply;
}

void AddFaults(HartLinkSim::Faults& faults, const Options& options) {
  EndingWith(ExitCode::Usage, [&] {
    for (const std::string& fault : options.faults) faults.Add(fault);
  });
  if (options.latencyMilliseconds > 0) {
    faults.Add({HartLinkSim::FaultKind::Latency, options.latencyMilliseconds, {}});
  }
}

Connection::Connection(const Options& options) {
  if (!options.pcapFile.empty()) {
    record_ = EndingWith(ExitCode::FileBroken,
                         [&] { return std::make_shared<HartLinks::PcapFile>(options.pcapFile); });
  }
  if (IsReal(options.link))
    UseRealLink(options);
  else
    UseEmulation(options);
  if (record_ && options.link != LinkKind::HartIp)
    link_ = HartLinks::CapturingLink::Create(link_, record_);
}

void Connection::UseEmulation(const Options& options) {
  std::shared_ptr<SimulatedLink> link;
  if (options.link == LinkKind::Echo)
    link = std::make_shared<HartLinkSim::EchoLink>();
  else
    link = emulated_ = std::make_shared<EmulatedLink>(MakeDevice(options.deviceFile));
  if (options.command != CommandKind::Serve) AddFaults(link->LinkFaults(), options);
  link_ = link;
}

void Connection::UseRealLink(const Options& options) {
  const LinkName name = CompleteName(options);
  link_ = EndingWith(ExitCode::Usage, [&]() -> std::shared_ptr<ZAFHartTypes::ILink> {
    if (name.kind == LinkKind::Modem) {
      return std::make_shared<HartLinks::HartModemLink>(
          ReadLinkOptions<HartLinks::ModemOptions>(name));
    }
    auto hartIp = ReadLinkOptions<HartLinks::HartIpOptions>(name);
    hartIp.observer = record_;
    return std::make_shared<HartLinks::HartIpLink>(hartIp);
  });
}

std::shared_ptr<EmulatedDevice> Connection::Device() const {
  return emulated_ ? emulated_->Device() : nullptr;
}

std::string Connection::LastError() const {
  const auto status = std::dynamic_pointer_cast<ZAFHartTypes::ILinkStatus>(link_);
  return status ? status->LastError() : "";
}

std::set<std::string> Connection::FileErrors() const {
  std::set<std::string> errors;
  if (emulated_) errors = emulated_->FileErrors();
  if (record_ && !record_->Error().empty()) errors.insert(record_->Error());
  return errors;
}

}  // namespace hartframe
