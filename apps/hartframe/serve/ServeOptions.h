#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "hart/HartIpMessage.h"

namespace hartframe {

class CommandAdder;
struct Options;

// Where and how serve lets an emulated device be reached.
struct ServeOptions {
  // The address part of --hart-ip; a device without users' accounts is for this machine unless its
  // user says otherwise.
  struct Listen {
    std::string host = "127.0.0.1";
    std::uint16_t port = ZAFHartTypes::hart::kHartIpPort;
  };

  std::optional<int> pollingAddress;  // nothing: what the device has
  std::optional<Listen> hartIp;       // nothing: not over HART-IP
  bool udp = true;
  bool tcp = true;
  bool pty = false;
  std::filesystem::path ptyLink;   // that leads to the pseudo terminal; empty: none
  std::size_t sparedRequests = 0;  // that the faults do not strike
  bool verbose = false;
};

// "5095", "HOST", "HOST:5095", "[::1]:5095"; nothing for anything else.
std::optional<ServeOptions::Listen> ParseListen(const std::string& text);

void AddServeCommand(CommandAdder& adder, Options& options);
// What follows from the options that were given. Raises CLI::ValidationError for a link to anything
// but an emulated device.
void CompleteServe(Options& options);

}  // namespace hartframe
