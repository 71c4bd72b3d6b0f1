#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "hart/Numbers.h"
#include "platform/Export.h"

// Who a device is, as it tells by command 0 (read unique identifier), 11 (by tag) or 21 (by long
// tag); all three have one reply, by the HART universal commands.
namespace ZAFHartTypes::hart {

// The identity by bytes 1 to 11 of the reply's data (the first is 0), and 17 and 18 from HART 7 on.
struct ZAF_API DeviceIdentity {
  // HART 7: the expanded device type; before: manufacturer and device type, a byte each.
  std::uint16_t expandedType = 0;
  std::optional<std::uint16_t> toldManufacturer;  // of 16 bits; HART 7 devices tell it
  std::uint8_t requestPreambles = 5;              // in front of what is sent to it, at least
  std::uint8_t universalRevision = 0;             // major number of the protocol: 5, 6, 7
  std::uint8_t deviceRevision = 0;                // of the type's set of commands and variables
  std::uint8_t softwareRevision = 0;
  std::uint8_t hardwareRevision = 0;   // 5 bits
  std::uint8_t physicalSignaling = 0;  // code of 3 bits
  std::uint8_t flags = 0;              // as HART's common table of device flags has them
  std::uint32_t deviceId = 0;          // 3 bytes: the number of this one device

  // Manufacturer as told, otherwise the high byte of the type.
  std::uint16_t Manufacturer() const;
  // The 38-bit address: low 6 bits and low byte of the type, then the device id.
  std::array<std::uint8_t, 5> UniqueAddress() const;
  // The unique address as exchanges have it: ten hexadecimal digits.
  std::string LongAddress() const;
  // In few words, the same in every language: "0x2606 rev. 1, HART 5, ID 0x001234".
  std::string Text() const;
};

// Takes an identity out of a reply, status bytes included. Nothing for a reply that has none: too
// short, damaged on the way, refused by the device, or of one from before HART 5.
ZAF_API std::optional<DeviceIdentity> ReadIdentity(Bytes reply);

}  // namespace ZAFHartTypes::hart
