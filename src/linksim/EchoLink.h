#pragma once

#include "linksim/SimulatedLink.h"
#include "platform/Export.h"

namespace HartLinkSim {

// A link that answers every command with its reply template, the present values of the data set:
// the data set itself plays the device's memory. Registered as "HartLinkSim.EchoLink".
//
// The template's status bytes repeat those of the reply before; where they stand for variables, the
// echo says "no error" instead, so that a fault does not last.
class ZAF_API EchoLink : public SimulatedLink {
 public:
  EchoLink() = default;

 protected:
  std::optional<Reply> Answer(const ZAFHartTypes::Exchange& exchange) override;
  std::uint8_t DeviceStatus(const ZAFHartTypes::Exchange& exchange) const override;
};

}  // namespace HartLinkSim
