#pragma once

#include "dtmkit/DataModelBase.h"
#include "dtmkit/KernelInformationBase.h"

// A DTM for any HART device, without knowledge of its type: what the universal commands of HART 5,
// 6 and 7 and the common practice commands tell and take.
namespace generic {

// Class "Generic.DataModel".
class DataModel : public ZAFHartTypes::dtmkit::DataModelBase {
 public:
  DataModel();
};

// Class "Generic.KernelInformation".
class KernelInformation : public ZAFHartTypes::dtmkit::KernelInformationBase {
 public:
  KernelInformation();
};

}  // namespace generic
