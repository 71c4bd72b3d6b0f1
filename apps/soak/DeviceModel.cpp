#include "soak/DeviceModel.h"

#include <algorithm>
#include <cmath>

#include "ddobjects/Transaction.h"
#include "ddobjects/Variable.h"

namespace soak {

using ZAFHartTypes::DataItem;
using ZAFHartTypes::Exchange;
using ZAFHartTypes::Variant;

namespace {

// Commands whose requests say what to do or to read, and leave the configuration as it is: HART
// command numbers of the sample device.
constexpr std::int16_t kNotConfiguring[] = {0, 9, 11, 21, 33, 38, 39, 40, 41, 42, 48, 54};

bool Configures(std::int16_t command) {
  return std::find(std::begin(kNotConfiguring), std::end(kNotConfiguring), command) ==
         std::end(kNotConfiguring);
}

// Floats lose digits on the wire.
bool IsSame(const Variant& sent, const Variant& held) {
  if (sent.IsText() || held.IsText()) return sent.ToText() == held.ToText();
  const double a = sent.ToDouble();
  const double b = held.ToDouble();
  if (std::isnan(a) || std::isnan(b)) return std::isnan(a) == std::isnan(b);
  return std::abs(a - b) <= 1e-6 * std::max(std::abs(a), std::abs(b));
}

}  // namespace

void DeviceModel::Execute(const std::shared_ptr<Exchange>& exchange) {
  ++commands_;
  if (const auto* items = exchange->RequestItems()) {
    for (const DataItem& item : *items) {
      if (item.IsVariable()) attempted_.insert(item.VariableDefinition().Name());
    }
  }
  DeviceLink::Execute(exchange);
}

std::optional<DeviceModel::Reply> DeviceModel::Answer(const Exchange& exchange) {
  if (Configures(exchange.CommandNumber())) Predict(exchange);
  return DeviceLink::Answer(exchange);
}

void DeviceModel::Predict(const Exchange& exchange) {
  const auto* items = exchange.RequestItems();
  if (!items) return;
  for (const DataItem& item : *items) {
    if (item.CarriesValue() && !item.IsIndex() && item.Mask() == 0) {
      memory_[item.VariableDefinition().Name()] = item.Value();
    }
  }
}

std::string DeviceModel::Difference() const {
  for (const auto& [name, sent] : memory_) {
    const auto held = Device()->Value(name);
    if (held && IsSame(sent, *held)) continue;
    return name + ": sent " + sent.Describe() + ", held " +
           (held ? held->Describe() : std::string("nothing"));
  }
  return {};
}

}  // namespace soak
