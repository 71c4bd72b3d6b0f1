#include "hartframe/link/LinkName.h"

#include <algorithm>
#include <string_view>

#include "platform/Failure.h"

namespace hartframe {

namespace {

constexpr std::string_view kHartIp = "hartip://";
constexpr std::string_view kModem = "modem:";

[[noreturn]] void Refuse(const std::string& text, const std::string& why) {
  throw platform::Failure(platform::ErrorNumber::InvalidArgument, "hartframe",
                          "\"" + text + "\": " + why);
}

// The text before the separator, which is taken off together with it.
std::string_view TakeUntil(std::string_view& rest, char separator) {
  const std::size_t end = std::min(rest.find(separator), rest.size());
  const std::string_view part = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return part;
}

void TakeSettings(LinkName& name, std::string_view query) {
  while (!query.empty()) {
    std::string_view value = TakeUntil(query, '&');
    const std::string setting(TakeUntil(value, '='));
    if (setting.empty() || value.empty()) {
      Refuse(name.text, "behind the \"?\" stand settings: SETTING=VALUE, with \"&\" between them");
    }
    if (!name.settings.emplace(platform::FoldAscii(setting), value).second) {
      Refuse(name.text, "the setting " + setting + " stands there twice");
    }
  }
}

// HOST or [HOST]; what stands behind it stays in `server`.
std::string TakeHost(const LinkName& name, std::string_view& server) {
  if (!server.starts_with('[')) {
    const std::string host(server.substr(0, server.find(':')));
    server.remove_prefix(host.size());
    if (server.find(':', 1) != std::string_view::npos) {
      Refuse(name.text, "an IPv6 address stands in brackets: hartip://[ADDRESS]");
    }
    return host;
  }
  if (server.find(']') == std::string_view::npos) {
    Refuse(name.text, "the \"]\" behind the IPv6 address is missing");
  }
  server.remove_prefix(1);
  return std::string(TakeUntil(server, ']'));
}

void TakeServer(LinkName& name, std::string_view place) {
  std::string_view server = TakeUntil(place, '/');
  if (!place.empty()) name.settings.emplace("transport", place);
  const std::string host = TakeHost(name, server);
  if (host.empty()) {
    Refuse(name.text, "the host is missing: hartip://HOST[:PORT][/udp|/tcp]");
  }
  name.settings.emplace("host", host);
  if (server.empty()) return;
  if (!server.starts_with(':') || server.size() == 1) {
    Refuse(name.text, "behind the host stands :PORT, /udp or /tcp");
  }
  name.settings.emplace("port", server.substr(1));
}

void TakePort(LinkName& name, std::string_view port) {
  if (port.empty()) Refuse(name.text, "the serial port is missing: modem:/dev/ttyUSB0");
  name.settings.emplace("port", port);
}

}  // namespace

LinkName LinkName::Parse(const std::string& text) {
  LinkName name{LinkKind::Echo, text, {}};
  std::string_view rest = text;
  std::string_view place = TakeUntil(rest, '?');
  if (platform::EqualsNoCase(place, "echo")) return name;
  if (platform::EqualsNoCase(place, "device")) {
    name.kind = LinkKind::Device;
    return name;
  }
  if (place.starts_with(kHartIp)) {
    name.kind = LinkKind::HartIp;
    TakeServer(name, place.substr(kHartIp.size()));
  } else if (place.starts_with(kModem)) {
    name.kind = LinkKind::Modem;
    TakePort(name, place.substr(kModem.size()));
  } else {
    Refuse(text,
           "a link is echo, device, hartip://HOST[:PORT][/udp|/tcp] or modem:PORT "
           "(modem:/dev/ttyUSB0)");
  }
  TakeSettings(name, rest);
  return name;
}

void RequireKnownSettings(const LinkName& name, const std::set<std::string>& asked) {
  std::string known;
  for (const std::string& setting : asked) known += (known.empty() ? "" : ", ") + setting;
  for (const auto& setting : name.settings) {
    const bool isKnown = std::any_of(asked.begin(), asked.end(), [&](const std::string& other) {
      return platform::EqualsNoCase(setting.first, other);
    });
    if (!isKnown) {
      Refuse(name.text, "the link has no setting \"" + setting.first + "\"; it has: " + known);
    }
  }
}

}  // namespace hartframe
