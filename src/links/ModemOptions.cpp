#include "links/ModemOptions.h"

#include <filesystem>

#include "links/LinkSettings.h"
#include "platform/Failure.h"

namespace HartLinks {
namespace {

// A start bit, eight data bits, parity, a stop bit.
constexpr int kBitsOfCharacter = 11;

}  // namespace

ModemOptions ModemOptions::FromSettings() {
  return From(LinkSettings(kModemSettingsKey));
}

ModemOptions ModemOptions::From(const LinkSettings& settings) {
  ModemOptions options;
  options.port = settings.Text("Port", "");
  if (options.port.empty()) {
    throw platform::Failure(platform::ErrorNumber::InvalidArgument, "HartLinks.ModemOptions",
                            "Setting \"Port\" of " + settings.Place() +
                                " is missing; it has to be the path of a serial port.");
  }
  options.baud = settings.Number("Baud", options.baud, 300, 115'200);
  options.parity = settings.Choice<Parity>(
      "Parity", options.parity,
      {{"odd", Parity::Odd}, {"even", Parity::Even}, {"none", Parity::None}});
  options.rts = settings.Choice<RequestToSend>(
      "Rts", options.rts,
      {{"sending", RequestToSend::WhileSending}, {"untouched", RequestToSend::Untouched}});
  options.watchCarrier =
      settings.Choice<bool>("Carrier", options.watchCarrier, {{"ignore", false}, {"watch", true}});
  options.primaryMaster = settings.Choice<bool>("Master", options.primaryMaster,
                                                {{"primary", true}, {"secondary", false}});
  options.retries = settings.Number("Retries", options.retries, 0, 20);
  if (const int time = settings.Number("CharacterTime", -1, 0, 1'000'000); time >= 0) {
    options.characterTime = std::chrono::microseconds{time};
  }
  options.latency = platform::Milliseconds{settings.Number("Latency", 0, 0, 10'000)};
  options.busy = settings.Busy();
  return options;
}

bool IsPseudoTerminal(const std::string& port) {
  std::error_code ignored;
  return std::filesystem::weakly_canonical(port, ignored).string().starts_with("/dev/pts/");
}

std::chrono::microseconds CharacterTimeOf(const ModemOptions& options) {
  if (options.characterTime) return *options.characterTime;
  if (IsPseudoTerminal(options.port)) return std::chrono::microseconds{0};
  return std::chrono::microseconds{kBitsOfCharacter * 1'000'000 / options.baud};
}

}  // namespace HartLinks
