#pragma once

#include <memory>

#include "linksim/EmulatedDevice.h"
#include "linksim/SimulatedLink.h"
#include "platform/Export.h"

namespace HartLinkSim {

// A link to an emulated device. Registered as "HartLinkSim.DeviceLink".
class ZAF_API DeviceLink : public SimulatedLink {
 public:
  // To the device of the calling thread's platform.
  DeviceLink() : DeviceLink(EmulatedDevice::OfThread()) {}
  // To a device that is shared with the caller. Raises InvalidArgument for a setting that cannot be
  // read, like all simulated links. REQUIRES: a device.
  explicit DeviceLink(std::shared_ptr<EmulatedDevice> device) : device_(std::move(device)) {}

  const std::shared_ptr<EmulatedDevice>& Device() const { return device_; }

 protected:
  std::optional<Reply> Answer(const ZAFHartTypes::Exchange& exchange) override;
  std::uint8_t DeviceStatus(const ZAFHartTypes::Exchange& exchange) const override;

 private:
  std::shared_ptr<EmulatedDevice> device_;
};

}  // namespace HartLinkSim
