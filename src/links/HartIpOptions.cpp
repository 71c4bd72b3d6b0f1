#include "links/HartIpOptions.h"

#include "links/LinkSettings.h"
#include "platform/Failure.h"

namespace HartLinks {

using platform::Milliseconds;

HartIpOptions HartIpOptions::FromSettings() {
  return From(LinkSettings(kHartIpSettingsKey));
}

HartIpOptions HartIpOptions::From(const LinkSettings& settings) {
  const auto time = [&](std::string_view name, Milliseconds otherwise, int least) {
    return Milliseconds{
        settings.Number(name, static_cast<int>(otherwise.count()), least, 86'400'000)};
  };
  HartIpOptions options;
  options.server.host = settings.Text("Host", "");
  if (options.server.host.empty()) {
    throw platform::Failure(
        platform::ErrorNumber::InvalidArgument, "HartLinks.HartIpOptions",
        "Setting \"Host\" of " + settings.Place() +
            " is missing; it has to be the name or address of a HART-IP server.");
  }
  options.server.port = static_cast<std::uint16_t>(
      settings.Number("Port", ZAFHartTypes::hart::kHartIpPort, 1, UINT16_MAX));
  options.server.transport = settings.Choice("Transport", options.server.transport,
                                             {{"udp", Transport::Udp}, {"tcp", Transport::Tcp}});
  options.primaryMaster =
      settings.Choice("Master", options.primaryMaster, {{"primary", true}, {"secondary", false}});
  options.timeout = time("Timeout", options.timeout, 1);
  options.retries = settings.Number("Retries", options.retries, 0, 100);
  options.connectTimeout = time("ConnectTimeout", options.connectTimeout, 1);
  options.inactivityTime = time("InactivityTime", options.inactivityTime, 0);
  options.outstanding = settings.Number("Outstanding", options.outstanding, 1, 1000);
  options.busy = settings.Busy();
  return options;
}

}  // namespace HartLinks
