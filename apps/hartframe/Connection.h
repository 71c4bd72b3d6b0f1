#pragma once

#include <memory>
#include <set>
#include <string>

#include "hartframe/Options.h"
#include "linksim/DeviceLink.h"

namespace hartframe {

// A link to an emulated device that remembers what the device could not do with its file.
class DeviceConnection : public HartLinkSim::DeviceLink {
 public:
  using DeviceLink::DeviceLink;
  // Each names the variable or the file and what is wrong with it.
  const std::set<std::string>& FileErrors() const { return fileErrors_; }

 protected:
  std::optional<Reply> Answer(const ZAFHartTypes::Exchange& exchange) override;

 private:
  std::set<std::string> fileErrors_;
};

// The link to the device, with its faults. CommandFailure: Usage for a fault that is none,
// FileBroken for a device file that cannot be used.
std::shared_ptr<HartLinkSim::SimulatedLink> MakeLink(const Options& options);

}  // namespace hartframe
