#pragma once

#include <cstdint>
#include <string>

#include "ddobjects/Definition.h"
#include "interfaces/ComponentBase.h"

namespace ZAFHartLib {

// The variables that hold a device's polling address and tag, and their last known values.
class AddressVariables {
 public:
  // Finds the variables "polling_address" and "tag", or those that commands 6 and 13 name, and
  // reads them. One that is not there is reported to the GUI manager; its value is then 0 or "".
  void Find(const ZAFHartTypes::ModelReference& model);
  // Through the kernel, attributes computed; variables that were not found are left alone.
  void ReadFromKernel(const ZAFHartTypes::ModelReference& model);
  // The stored values.
  void ReadFromDatabase(const ZAFHartTypes::ModelReference& model);
  // Takes new values and stores them, not to be written to the device.
  void Set(const ZAFHartTypes::ModelReference& model, std::int32_t pollingAddress,
           const std::string& tag);

  const ZAFHartTypes::Definition& TagVariable() const { return tagVariable_; }
  const ZAFHartTypes::Definition& PollingAddressVariable() const { return pollingVariable_; }
  std::int32_t PollingAddress() const { return pollingAddress_; }
  const std::string& Tag() const { return tag_; }

 private:
  template <typename ReadVariable>
  void Read(ReadVariable read);

  ZAFHartTypes::Definition tagVariable_;
  ZAFHartTypes::Definition pollingVariable_;
  std::int32_t pollingAddress_ = 0;
  std::string tag_;
};

}  // namespace ZAFHartLib
