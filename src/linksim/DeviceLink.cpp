#include "linksim/DeviceLink.h"

namespace HartLinkSim {

using ZAFHartTypes::Exchange;

std::optional<SimulatedLink::Reply> DeviceLink::Answer(const Exchange& exchange) {
  return device_->Answer(exchange);
}

std::uint8_t DeviceLink::DeviceStatus(const Exchange&) const {
  return device_->Status();
}

}  // namespace HartLinkSim
