#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "hart/DeviceIdentity.h"

namespace hartframe {

// A device that a scan has met.
struct FoundDevice {
  std::optional<int> pollingAddress;  // nothing: behind a gateway, by its long address only
  ZAFHartTypes::hart::DeviceIdentity identity;
  std::string tag;      // "" when it could not be read
  std::string longTag;  // the same, and before HART 6
};

// The answer to a raw command.
struct RawReply {
  int command = 0;                  // of command 31: the number in its data
  std::string address;              // a polling address or a long address
  std::vector<std::uint8_t> bytes;  // from the response code on; two at least
};

// What the status bytes of a reply say, multilingual, the first byte's first.
std::vector<std::string> StatusTexts(const RawReply& reply);
// "0x40"
std::string HexByte(std::uint8_t byte);
// "0xFA10".
std::string HexWord(std::uint16_t word);

}  // namespace hartframe
