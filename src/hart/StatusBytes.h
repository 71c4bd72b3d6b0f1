#pragma once

#include <cstddef>
#include <cstdint>

// The two status bytes at the start of every HART reply, by the HART command summary and common
// tables.
namespace ZAFHartTypes::hart {

// Number of status bytes before the data.
inline constexpr std::size_t kStatusSize = 2;

// First byte with bit 7 set: communication error flags of the device's receiver.
enum CommunicationFlag : std::uint8_t {
  kCommunicationError = 0x80,
  kVerticalParityError = 0x40,
  kOverrunError = 0x20,
  kFramingError = 0x10,
  kLongitudinalParityError = 0x08,
  kBufferOverflow = 0x02,
};

// First byte with bit 7 clear: response code.
enum ResponseCodeValue : std::uint8_t {
  kSuccess = 0,
  kInvalidSelection = 2,
  kTooFewDataBytes = 5,
  kDeviceSpecificError = 6,
  kBusy = 32,
};

// Second byte: field device status.
enum DeviceStatusFlag : std::uint8_t {
  kDeviceMalfunction = 0x80,
  kConfigurationChanged = 0x40,
  kColdStart = 0x20,
  kMoreStatusAvailable = 0x10,
  kLoopCurrentFixed = 0x08,
  kLoopCurrentSaturated = 0x04,
  kNonPrimaryOutOfLimits = 0x02,
  kPrimaryOutOfLimits = 0x01,
};

// The byte has bit 7 set, hence is no response code.
constexpr bool IsCommunicationError(std::uint8_t firstByte) {
  return (firstByte & kCommunicationError) != 0;
}

// A response code by which the device carried the command out all the same; its reply has data. The
// warning codes are 8, 14, 24 to 27, 30, 31 and 96 to 127.
constexpr bool IsCarriedOut(std::uint8_t responseCode) {
  return responseCode == kSuccess || responseCode == 8 || responseCode == 14 ||
         (responseCode >= 24 && responseCode <= 27) || responseCode == 30 || responseCode == 31 ||
         (responseCode >= 96 && responseCode <= 127);
}

// First byte of the identity that command 0 answers (expansion code).
inline constexpr std::uint8_t kExpansionCode = 254;

}  // namespace ZAFHartTypes::hart
