#pragma once

#include <string>

#include "interfaces/IDeviceConnection.h"

namespace hartframe {

// Where the device is, as --address says: a polling address 0 to 63, a long address of ten
// hexadecimal digits, or else a tag; "tag:" stands before one that could be either.
struct DeviceAddress {
  ZAFHartTypes::Addressing addressing = ZAFHartTypes::Addressing::PollingAddress;
  int polling = 0;
  std::string tag;          // of up to 8 characters, or a long tag of up to 32
  std::string longAddress;  // ten capital hexadecimal digits; zeros address any device

  // Raises InvalidArgument saying what is wrong and what would be right.
  static DeviceAddress Parse(const std::string& text);
};

}  // namespace hartframe
