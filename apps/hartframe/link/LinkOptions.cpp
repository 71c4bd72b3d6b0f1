#include "hartframe/link/LinkOptions.h"

#include "hart/HexText.h"
#include "hart/LinkFrame.h"
#include "platform/Failure.h"

namespace hartframe {

namespace {

namespace hart = ZAFHartTypes::hart;

// What a parser makes of an option's text; its Failure tells what is wrong with it.
template <typename Parser>
auto Parsed(const std::string& option, const std::string& text, Parser parse) {
  try {
    return parse(text);
  } catch (const platform::Failure& failure) {
    throw CLI::ValidationError(option, failure.Description());
  }
}

// Hexadecimal digits, two for each byte; "0x" may stand before them, blanks between the bytes.
void AddBytes(std::vector<std::uint8_t>& data, const std::string& text) {
  const bool isPrefixed = text.starts_with("0x") || text.starts_with("0X");
  try {
    const std::vector<std::uint8_t> bytes = hart::FromHex(text.substr(isPrefixed ? 2 : 0));
    data.insert(data.end(), bytes.begin(), bytes.end());
  } catch (const platform::Failure&) {
    throw CLI::ValidationError("BYTES", '"' + text +
                                            "\" is no data: each byte has two hexadecimal digits, "
                                            "as in 00 3F or 003F");
  }
}

void AddEmulatorOptions(CLI::App& app, Options& options) {
  app.add_option("--device", options.deviceFile,
                 "Memory of the emulated device; changes are kept in it. Changes that could not "
                 "be written are kept in FILE.pending")
      ->type_name("FILE");
  app.add_option("--fault", options.faults, "Fault of the emulated device (repeatable)")
      ->type_name("FAULT")
      ->allow_extra_args(false);
  app.add_option("--latency", options.latencyMilliseconds, "Time that an exchange takes")
      ->type_name("MS")
      ->check(CLI::Range(0, 600000));
}

void AddRealLinkOptions(CLI::App& app, Options& options) {
  app.add_option("--retries", options.retries,
                 "Times that a real device is asked again when no good answer comes (default: 3; "
                 "scan: 0, over a modem 1)")
      ->type_name("N")
      ->check(CLI::Range(0, 100));
  app.add_option("--busy", options.busyAttempts,
                 "Times that a busy device is asked again (default: not at all)")
      ->type_name("ATTEMPTS")
      ->check(CLI::Range(1, 100));
  app.add_option("--pcap", options.pcapFile,
                 "Record what goes over the link, for network analysers; replaces the file")
      ->type_name("FILE");
  app.add_option("--pending", options.pendingFile,
                 "Keep changes that could not be written in this file (default: FILE.pending of "
                 "the --device)")
      ->type_name("FILE");
}

void CheckRealLink(const Options& options) {
  if (!options.deviceFile.empty() && options.link != LinkKind::Device) {
    throw CLI::ValidationError("--device needs --link device");
  }
  if (IsReal(options.link)) {
    if (options.faults.empty() && options.latencyMilliseconds == 0) return;
    throw CLI::ValidationError("--fault and --latency need an emulated device");
  }
  if (IsWithoutDtm(options.command)) {
    throw CLI::ValidationError("scan and raw need a real link: --link hartip://… or modem:…");
  }
  if (options.retries || options.busyAttempts) {
    throw CLI::ValidationError("--retries and --busy need a real link: hartip://… or modem:…");
  }
  if (options.address.addressing != ZAFHartTypes::Addressing::PollingAddress) {
    throw CLI::ValidationError("an emulated device has a polling address only: --address 0 to 63");
  }
}

}  // namespace

void AddLinkOptions(CLI::App& app, Options& options) {
  app.add_option_function<std::string>(
         "--link",
         [&options](const std::string& text) {
           options.givenLink = Parsed("--link", text, LinkName::Parse);
         },
         "The way to the device. echo: the data set answers itself; device: an emulated device "
         "with its own memory (default when --device is given); hartip://HOST[:PORT][/udp|/tcp] "
         "(IPv6 in brackets); modem:PORT. Settings follow as ?SETTING=VALUE&…")
      ->type_name("LINK");
  app.add_option_function<std::string>(
         "--address",
         [&options](const std::string& text) {
           options.address = Parsed("--address", text, DeviceAddress::Parse);
         },
         "The device's polling address (0 to 63, default: 0), tag, long tag, or long address of "
         "ten hexadecimal digits; tag:TEXT for a tag that looks like an address")
      ->type_name("ADDRESS");
  AddEmulatorOptions(app, options);
  AddRealLinkOptions(app, options);
}

void AddLinkCommands(CommandAdder& adder, Options& options) {
  CLI::App& scan = adder.Add(CommandKind::Scan, "scan",
                             "Look for devices at all polling addresses; needs no DTM");
  for (const auto& [name, value, description] :
       {std::tuple{"--from", &options.firstAddress, "First polling address (default: 0)"},
        std::tuple{"--to", &options.lastAddress, "Last polling address (default: 63)"}}) {
    scan.add_option(name, *value, description)
        ->type_name("N")
        ->check(CLI::Range(0, int{hart::LinkAddress::kMaxPolling}));
  }
  CLI::App& raw = adder.Add(CommandKind::Raw, "raw",
                            "Send one command as it is and print the reply; needs no DTM");
  raw.add_option("number", options.rawCommand, "Number of the command, also as 0x…")
      ->required()
      ->type_name("COMMAND")
      ->check(CLI::Range(0, 0xFFFF));
  raw.add_option_function<std::vector<std::string>>(
         "bytes",
         [&options](const std::vector<std::string>& texts) {
           for (const std::string& text : texts) AddBytes(options.rawData, text);
         },
         "Data bytes, two hexadecimal digits each: 00 3F or 003F")
      ->type_name("BYTES");
}

void CompleteLink(Options& options) {
  if (options.givenLink) {
    options.link = options.givenLink->kind;
  } else {
    options.link = options.deviceFile.empty() ? LinkKind::Echo : LinkKind::Device;
  }
  CheckRealLink(options);
  if (options.firstAddress > options.lastAddress) {
    throw CLI::ValidationError("--from is above --to");
  }
  if (options.command == CommandKind::Scan && !options.retries) {
    options.retries = options.link == LinkKind::Modem ? 1 : 0;
  }
}

}  // namespace hartframe
