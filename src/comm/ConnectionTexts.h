#pragma once

#include <span>
#include <string>

#include "ddobjects/SupportedDevices.h"
#include "hart/DeviceIdentity.h"
#include "platform/Export.h"

// Why there is no connection, as users are told: multilingual, and what to do about it.
namespace ZAFHartLib {

class DeviceSearch;

// `address`: the part of the address under which the device was looked for (DeviceTarget::Text).
// `reason` is what the link tells; "" when nobody answered.
ZAF_API std::string NoDeviceText(const std::string& address, std::string reason);
// Of a search that found nobody: as above, or that somebody answered without an identity.
ZAF_API std::string NotFoundText(const DeviceSearch& search, const std::string& address,
                                 const std::string& reason);
// "" for a device that the DTM is for: one of `supported`, or any when that is empty.
ZAF_API std::string WrongDeviceText(std::span<const ZAFHartTypes::SupportedDevice> supported,
                                    const ZAFHartTypes::hart::DeviceIdentity& found);
// Another unit than before; `before` is what is known of that.
ZAF_API std::string OtherDeviceText(const std::string& before,
                                    const ZAFHartTypes::hart::DeviceIdentity& found);

}  // namespace ZAFHartLib
