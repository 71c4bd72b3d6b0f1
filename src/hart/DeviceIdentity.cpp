#include "hart/DeviceIdentity.h"

#include <iomanip>
#include <sstream>

#include "hart/HexText.h"
#include "hart/StatusBytes.h"

namespace ZAFHartTypes::hart {
namespace {

// Positions in the data of the reply.
constexpr std::size_t kTypeAt = 1;
constexpr std::size_t kRequestPreamblesAt = 3;
constexpr std::size_t kUniversalRevisionAt = 4;
constexpr std::size_t kDeviceRevisionAt = 5;
constexpr std::size_t kSoftwareRevisionAt = 6;
constexpr std::size_t kHardwareAt = 7;  // revision and physical signaling in one byte
constexpr std::size_t kFlagsAt = 8;
constexpr std::size_t kDeviceIdAt = 9;
constexpr std::size_t kDeviceIdSize = 3;
constexpr std::size_t kManufacturerAt = 17;

constexpr unsigned kSignalingBits = 3;
constexpr std::uint8_t kSignalingMask = 0x07;
constexpr std::uint8_t kAddressTypeMask = 0x3F;  // of the type's high byte in an address
constexpr std::uint8_t kFirstWithManufacturer = 7;

std::uint16_t Word(Bytes data, std::size_t position) {
  return static_cast<std::uint16_t>(ReadUnsigned(data.subspan(position, 2)));
}

}  // namespace

std::uint16_t DeviceIdentity::Manufacturer() const {
  return toldManufacturer.value_or(static_cast<std::uint16_t>(expandedType >> 8));
}

std::array<std::uint8_t, 5> DeviceIdentity::UniqueAddress() const {
  std::array<std::uint8_t, 5> address{};
  address[0] = static_cast<std::uint8_t>((expandedType >> 8) & kAddressTypeMask);
  address[1] = static_cast<std::uint8_t>(expandedType);
  WriteUnsigned(WritableBytes(address).subspan(2), deviceId);
  return address;
}

std::string DeviceIdentity::LongAddress() const {
  return ToHex(UniqueAddress());
}

std::string DeviceIdentity::Text() const {
  std::ostringstream text;
  text << std::uppercase << std::setfill('0') << "0x" << std::hex << std::setw(4) << expandedType
       << std::dec << " rev. " << int{deviceRevision} << ", HART " << int{universalRevision}
       << ", ID 0x" << std::hex << std::setw(6) << deviceId;
  return text.str();
}

std::optional<DeviceIdentity> ReadIdentity(Bytes reply) {
  if (reply.size() < kStatusSize || !IsCarriedOut(reply[0])) return std::nullopt;
  const Bytes data = reply.subspan(kStatusSize);
  if (data.size() < kDeviceIdAt + kDeviceIdSize || data[0] != kExpansionCode) return std::nullopt;
  DeviceIdentity identity;
  identity.expandedType = Word(data, kTypeAt);
  identity.requestPreambles = data[kRequestPreamblesAt];
  identity.universalRevision = data[kUniversalRevisionAt];
  identity.deviceRevision = data[kDeviceRevisionAt];
  identity.softwareRevision = data[kSoftwareRevisionAt];
  identity.hardwareRevision = static_cast<std::uint8_t>(data[kHardwareAt] >> kSignalingBits);
  identity.physicalSignaling = data[kHardwareAt] & kSignalingMask;
  identity.flags = data[kFlagsAt];
  identity.deviceId = ReadUnsigned(data.subspan(kDeviceIdAt, kDeviceIdSize));
  if (identity.universalRevision >= kFirstWithManufacturer && data.size() >= kManufacturerAt + 2) {
    identity.toldManufacturer = Word(data, kManufacturerAt);
  }
  return identity;
}

}  // namespace ZAFHartTypes::hart
