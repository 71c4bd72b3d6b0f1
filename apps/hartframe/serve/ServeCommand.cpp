#include <algorithm>

#include "hart/HexText.h"
#include "hartframe/commands/Commands.h"
#include "hartframe/serve/Emulation.h"
#include "hartframe/serve/ServeTexts.h"
#include "links/HartIpServer.h"
#include "links/ModemServer.h"
#include "links/PtyChannel.h"
#include "platform/Platform.h"

namespace hartframe {

namespace {

using HartLinks::HartIpServer;
using platform::Failure;

// A line that scripts can take apart, with no text of any language: "udp 127.0.0.1:5094".
void TellPlace(Session& session, const std::string& way, const std::string& place) {
  const Fact facts[] = {{"way", "", way}, {"address", "", place}};
  session.Tell().Event("listening", way + " " + place, facts);
}

void TellDevice(Session& session, Emulation& emulation) {
  const std::string address = ZAFHartTypes::hart::ToHex(emulation.Wire().Address().bytes);
  const std::string polling =
      std::to_string(emulation.Wire().Device()->Number("polling_address").value_or(0));
  const Fact facts[] = {{"longAddress", "", address}, {"pollingAddress", "", polling}};
  session.Tell().Event("device", session.Say()(texts::kServing, {address, polling}), facts);
}

std::unique_ptr<HartIpServer> ServeHartIp(Session& session, Emulation& emulation) {
  const ServeOptions& serve = session.Settings().serve;
  if (!serve.hartIp) return nullptr;
  HartLinks::HartIpServerOptions options;
  options.local = platform::ResolveName(serve.hartIp->host, serve.hartIp->port).front();
  options.udp = serve.udp;
  options.tcp = serve.tcp;
  options.service.burst = [&emulation] { return emulation.Wire().Burst(); };
  return std::make_unique<HartIpServer>(
      [&emulation](const auto& request) { return emulation.Answer(request); }, options);
}

// A pseudo terminal with the device as if at the end of a modem's line.
class PtyLine {
 public:
  PtyLine(Session& session, Emulation& emulation)
      : server_(channel_, [&emulation](const auto& request) { return emulation.Answer(request); },
                {.preambles = PreamblesOf(*emulation.Wire().Device())}) {
    const std::filesystem::path& link = session.Settings().serve.ptyLink;
    if (!link.empty()) link_.emplace(link, channel_.Name());
    place_ = link.empty() ? channel_.Name() : link.string();
  }

  // What other programs open.
  const std::string& Place() const { return place_; }

 private:
  static int PreamblesOf(const HartLinkSim::EmulatedDevice& device) {
    constexpr std::uint32_t kFewest = 5;
    constexpr std::uint32_t kMost = 20;
    const std::uint32_t wanted = device.Number("response_preambles").value_or(kFewest);
    return static_cast<int>(std::clamp(wanted, kFewest, kMost));
  }

  HartLinks::PtyChannel channel_;
  HartLinks::ModemServer server_;
  std::optional<platform::TemporaryLink> link_;
  std::string place_;
};

// Where the device can be reached; a place that cannot be had leaves none of them.
class Places {
 public:
  Places(Session& session, Emulation& emulation) : server_(ServeHartIp(session, emulation)) {
    if (session.Settings().serve.pty) line_.emplace(session, emulation);
  }

  void Tell(Session& session) const {
    const ServeOptions& serve = session.Settings().serve;
    if (server_ && serve.udp) TellPlace(session, "udp", server_->Address().Text());
    if (server_ && serve.tcp) TellPlace(session, "tcp", server_->Address().Text());
    if (line_) TellPlace(session, "pty", line_->Place());
  }

 private:
  std::unique_ptr<HartIpServer> server_;
  std::optional<PtyLine> line_;
};

std::unique_ptr<Places> OpenPlaces(Session& session, Emulation& emulation) {
  try {
    return std::make_unique<Places>(session, emulation);
  } catch (const Failure& failure) {
    throw CommandFailure(ExitCode::Communication,
                         session.Say()(texts::kCannotServe, {failure.Description()}));
  }
}

// A mistyped name must not pass for the device that was meant.
void TellNewFile(Session& session) {
  const std::filesystem::path& file = session.Settings().deviceFile;
  std::error_code error;
  if (file.empty() || std::filesystem::exists(file, error)) return;
  session.Tell().Note("newDevice", session.Say()(texts::kNewDevice, {file.string()}));
}

}  // namespace

ExitCode RunServe(Session& session) {
  TellNewFile(session);
  Emulation emulation(session);
  const auto places = OpenPlaces(session, emulation);
  TellDevice(session, emulation);
  places->Tell(session);
  while (!session.Interrupted()) {
    platform::Current().Loop().WaitStep(platform::Milliseconds(100));
  }
  session.Tell().Note("served",
                      session.Say()(texts::kServed, {std::to_string(emulation.Answered())}));
  return emulation.Code();
}

}  // namespace hartframe
