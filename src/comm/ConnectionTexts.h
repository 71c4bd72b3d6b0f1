#pragma once

#include <span>
#include <string>

#include "ddobjects/SupportedDevices.h"
#include "hart/DeviceIdentity.h"

// Why there is no connection, as users are told: multilingual, and what to do about it.
namespace ZAFHartLib {

// `reason` is what the link tells; "" when nobody answered.
std::string NoDeviceText(const std::string& address, std::string reason);
// Somebody answered without an identity; `status` is the reply's first byte.
std::string NoIdentityText(const std::string& address, std::uint8_t status);
// "" for a device that the DTM is for: one of `supported`, or any when that is empty.
std::string WrongDeviceText(std::span<const ZAFHartTypes::SupportedDevice> supported,
                            const ZAFHartTypes::hart::DeviceIdentity& found);
// Another unit than before; `before` is what is known of that.
std::string OtherDeviceText(const std::string& before,
                            const ZAFHartTypes::hart::DeviceIdentity& found);

}  // namespace ZAFHartLib
