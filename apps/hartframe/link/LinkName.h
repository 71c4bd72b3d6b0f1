#pragma once

#include <map>
#include <set>
#include <string>

#include "links/LinkSettings.h"
#include "platform/AsciiText.h"

namespace hartframe {

enum class LinkKind { Echo, Device, HartIp, Modem };

// The link leads to real devices.
constexpr bool IsReal(LinkKind kind) {
  return kind == LinkKind::HartIp || kind == LinkKind::Modem;
}

// What --link names:
//   echo, device
//   hartip://HOST[:PORT][/udp|/tcp][?SETTING=VALUE&…]    an IPv6 address stands in brackets
//   modem:PORT[?SETTING=VALUE&…]
// The settings are those of the link's class, in any letter case.
struct LinkName {
  LinkKind kind = LinkKind::Echo;
  std::string text = "echo";                    // as it was given
  std::map<std::string, std::string> settings;  // by folded name

  // Raises InvalidArgument saying what is wrong and what would be right.
  static LinkName Parse(const std::string& text);
};

// Raises InvalidArgument for settings that are not among the `asked` ones.
void RequireKnownSettings(const LinkName& name, const std::set<std::string>& asked);

// The options of a link class (they have From(LinkSettings)) as the name has them. Raises
// InvalidArgument for a setting that the class does not have and for a value that is none.
template <typename Options>
Options ReadLinkOptions(const LinkName& name) {
  std::set<std::string> asked;
  const HartLinks::LinkSettings settings(
      [&](std::string_view setting) -> std::optional<std::string> {
        asked.emplace(setting);
        const auto found = name.settings.find(platform::FoldAscii(setting));
        if (found == name.settings.end()) return std::nullopt;
        return found->second;
      },
      "\"" + name.text + "\"");
  Options options = Options::From(settings);
  RequireKnownSettings(name, asked);
  return options;
}

}  // namespace hartframe
