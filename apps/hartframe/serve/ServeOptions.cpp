#include "hartframe/serve/ServeOptions.h"

#include <algorithm>
#include <charconv>

#include "hartframe/CommandAdder.h"

namespace hartframe {

namespace {

using Listen = ServeOptions::Listen;

bool IsNumber(const std::string& text) {
  return !text.empty() && std::all_of(text.begin(), text.end(),
                                      [](char digit) { return digit >= '0' && digit <= '9'; });
}

std::optional<std::uint16_t> ParsePort(const std::string& text) {
  std::uint16_t port = 0;
  const char* const end = text.data() + text.size();
  const auto [last, error] = std::from_chars(text.data(), end, port);
  if (error != std::errc{} || last != end) return std::nullopt;
  return port;
}

}  // namespace

std::optional<Listen> ParseListen(const std::string& text) {
  Listen listen;
  std::string port = text;
  if (text.starts_with('[')) {
    const std::size_t close = text.find(']');
    if (close == std::string::npos) return std::nullopt;
    listen.host = text.substr(1, close - 1);
    port = text.substr(close + 1);
    if (port.empty()) return listen;
    if (port[0] != ':') return std::nullopt;
    port.erase(0, 1);
  } else if (const std::size_t colon = text.find(':'); colon != std::string::npos) {
    listen.host = text.substr(0, colon);
    port = text.substr(colon + 1);
  } else if (!IsNumber(text)) {
    listen.host = text;
    return text.empty() ? std::nullopt : std::optional(listen);
  }
  const auto number = ParsePort(port);
  if (listen.host.empty() || !number) return std::nullopt;
  listen.port = *number;
  return listen;
}

void AddServeCommand(CommandAdder& adder, Options& options) {
  ServeOptions& serve = options.serve;
  CLI::App& command = adder.Add(CommandKind::Serve, "serve",
                                "Let the emulated device be reached over HART-IP (default) or a "
                                "pseudo terminal, until Ctrl-C");
  command.add_option("--polling-address", serve.pollingAddress, "Polling address of the device")
      ->type_name("N")
      ->check(CLI::Range(0, 63));
  command
      .add_option_function<std::string>(
          "--hart-ip",
          [&serve](const std::string& text) {
            serve.hartIp = text.empty() ? Listen{} : ParseListen(text);
            if (!serve.hartIp) throw CLI::ValidationError("--hart-ip: [HOST:]PORT is wanted");
          },
          "Where to listen (default: 127.0.0.1:5094); port 0 takes a free one")
      ->type_name("[HOST:]PORT")
      ->expected(0, 1)
      ->trigger_on_parse();
  const auto only = [&serve](bool udp) {
    return [&serve, udp](std::int64_t) {
      serve.udp = udp;
      serve.tcp = !udp;
    };
  };
  CLI::Option* const udp = command.add_flag_function("--udp", only(true), "HART-IP over UDP only");
  command.add_flag_function("--tcp", only(false), "HART-IP over TCP only")->excludes(udp);
  command
      .add_option_function<std::string>(
          "--pty",
          [&serve](const std::string& link) {
            serve.pty = true;
            serve.ptyLink = link;
          },
          "Open a pseudo terminal, as a modem's line; LINK is made to lead to it")
      ->type_name("[LINK]")
      ->expected(0, 1)
      ->trigger_on_parse();
  command
      .add_option("--fault-after", serve.sparedRequests,
                  "--fault and --latency strike when so many requests have been answered")
      ->type_name("N");
  command.add_flag("--verbose", serve.verbose, "A line per request");
}

void CompleteServe(Options& options) {
  if (!options.givenLink) options.link = LinkKind::Device;
  if (options.link != LinkKind::Device) throw CLI::ValidationError("serve needs --link device");
  ServeOptions& serve = options.serve;
  if (!serve.hartIp && (!serve.pty || !serve.udp || !serve.tcp))
    serve.hartIp = ServeOptions::Listen{};
}

}  // namespace hartframe
