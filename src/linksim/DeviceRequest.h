#pragma once

#include <vector>

#include "interfaces/ILink.h"

namespace HartLinkSim {

// A request as the device sees it: its bytes taken apart by the types of its items.
class DeviceRequest {
 public:
  struct Field {
    ZAFHartTypes::TextKey name;
    ZAFHartTypes::Variant value;
    ZAFHartTypes::TypeCode type;
    bool isSelector;  // INDEX or INFO: says which, and is not kept
  };

  // Raises InvalidArgument for request data that are not hexadecimal.
  explicit DeviceRequest(const ZAFHartTypes::Exchange& exchange);

  // There are bytes for all items.
  bool IsComplete() const { return isComplete_; }
  // The variables of the request, in item order.
  const std::vector<Field>& Fields() const { return fields_; }
  // The value sent for a variable, which the reply repeats; nullptr when it was not sent.
  const ZAFHartTypes::Variant* Echo(ZAFHartTypes::TextKey name) const;

 private:
  std::vector<Field> fields_;
  bool isComplete_ = true;
};

}  // namespace HartLinkSim
