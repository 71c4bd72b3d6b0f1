#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "links/BusyPolicy.h"
#include "platform/Export.h"

namespace HartLinks {

class LinkSettings;

// Registry key of "HartModem.Link", read when a link is made.
inline constexpr std::string_view kModemSettingsKey =
    "\\HKEY_LOCAL_MACHINE\\SOFTWARE\\Quillbridge\\HART\\Modem";

// Parity bit of a character.
enum class Parity : std::uint8_t { None, Odd, Even };

// The line that switches the modem's carrier.
enum class RequestToSend : std::uint8_t {
  Untouched,     // a modem that finds out by itself when to send
  WhileSending,  // on from before the first preamble until the last bit has left
};

// How a modem is reached. HART's own line is 1200 baud with odd parity.
struct ZAF_API ModemOptions {
  std::string port;  // "/dev/ttyUSB0"; a pseudo terminal will do
  int baud = 1200;   // 300 to 115200
  Parity parity = Parity::Odd;
  RequestToSend rts = RequestToSend::WhileSending;
  bool watchCarrier = false;  // wait while the modem reports a carrier; not all cables bring it
  bool primaryMaster = true;  // else the secondary one
  int retries = 3;            // after the first attempt, 0 to 20
  // Time of one character on the wire, 11 bits; nothing: as `baud` says, and none on a pseudo
  // terminal, which has no speed.
  std::optional<std::chrono::microseconds> characterTime;
  // What an adapter (Bluetooth, a port server) adds between wire and program; waited for in
  // addition.
  platform::Milliseconds latency{0};
  BusyPolicy busy;

  // From the registry: "Port", "Baud" (1200), "Parity" (odd, even, none), "Rts" (sending,
  // untouched), "Carrier" (ignore, watch), "Master" (primary, secondary), "Retries" (3),
  // "CharacterTime" (microseconds, to 1000000), "Latency" (milliseconds, to 10000), "BusyAttempts",
  // "BusyDelay"; all but "Port" may be absent. Raises InvalidArgument naming place and value. The
  // second reads the same settings from another place.
  static ModemOptions FromSettings();
  static ModemOptions From(const LinkSettings& settings);
};

// The port is one, or a link to one.
ZAF_API bool IsPseudoTerminal(const std::string& port);

// The time of a character that holds for these options.
ZAF_API std::chrono::microseconds CharacterTimeOf(const ModemOptions& options);

}  // namespace HartLinks
