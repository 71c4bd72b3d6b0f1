#pragma once

#include <cstdint>
#include <vector>

#include "hart/LinkFrame.h"
#include "linksim/EmulatedDevice.h"

namespace HartLinkSim {

// Completes a reply to command 0 (11 and 21 alike; status bytes included) to that of its universal
// revision: 12 data bytes in HART 5, 17 in HART 6, 22 in HART 7. What `reply` has stays, the rest
// comes from the device's values ("device_type", "device_id", …) or is that of a plain device. The
// expansion code is 254, the revision 5 to 7, and the address never that of a broadcast.
void CompleteIdentity(std::vector<std::uint8_t>& reply, const EmulatedDevice& device);

// The long address that follows from such a reply. REQUIRES: it is complete.
ZAFHartTypes::hart::LinkAddress AddressOf(ZAFHartTypes::hart::Bytes identity);

}  // namespace HartLinkSim
