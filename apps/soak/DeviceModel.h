#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "linksim/DeviceLink.h"

namespace soak {

using Names = std::unordered_set<std::string>;

// A link that watches what reaches the emulated device, and predicts from the values that were to
// be sent what the device's memory holds.
class DeviceModel : public HartLinkSim::DeviceLink {
 public:
  using DeviceLink::DeviceLink;

  void Execute(const std::shared_ptr<ZAFHartTypes::Exchange>& exchange) override;

  std::uint64_t Commands() const { return commands_; }
  // The variables of all requests since the last call, whether or not they reached the device.
  Names TakeAttempted() { return std::exchange(attempted_, {}); }
  // How many values are predicted.
  std::size_t Count() const { return memory_.size(); }
  // Where the device's memory is not as predicted; "" when it is.
  std::string Difference() const;

 protected:
  std::optional<Reply> Answer(const ZAFHartTypes::Exchange& exchange) override;

 private:
  void Predict(const ZAFHartTypes::Exchange& exchange);

  std::uint64_t commands_ = 0;
  Names attempted_;
  std::unordered_map<std::string, ZAFHartTypes::Variant> memory_;
};

}  // namespace soak
