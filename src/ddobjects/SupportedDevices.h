#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/Export.h"

namespace ZAFHartTypes {

// Devices that a DTM is made for.
struct ZAF_API SupportedDevice {
  static constexpr std::uint8_t kAnyRevision = 255;  // as the highest: later ones too

  // As command 0 tells it (hart::DeviceIdentity): the expanded type, or before HART 7 manufacturer
  // and type of a byte each.
  std::uint16_t expandedType = 0;
  std::uint8_t lowestRevision = 0;  // of the device; both ends belong to it
  std::uint8_t highestRevision = kAnyRevision;
  std::optional<std::uint16_t> manufacturer = {};  // compared when it is given

  // In few words, the same in every language: "0xFA10 rev. 1-3".
  std::string Text() const;
};

// Offered by the kernel information of a DTM that is made for certain devices. Without it, or with
// an empty list, every device will do.
class ZAF_API ISupportedDevices {
 public:
  virtual ~ISupportedDevices() = default;
  // Asked when a connection is made: a device that matches none of them is refused.
  virtual std::vector<SupportedDevice> SupportedDevices() const = 0;
};

}  // namespace ZAFHartTypes
