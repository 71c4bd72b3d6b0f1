#pragma once

#include "dtmkit/DataModelBase.h"
#include "dtmkit/KernelInformationBase.h"
#include "platform/ComponentClasses.h"

// A DTM for a two-wire temperature transmitter: an example for DTM authors and a subject for tests.
namespace sampletemperature {

// Class "SampleTemperature.DataModel".
class DataModel : public ZAFHartTypes::dtmkit::DataModelBase {
 public:
  DataModel();
};

// Class "SampleTemperature.KernelInformation".
class KernelInformation : public ZAFHartTypes::dtmkit::KernelInformationBase {
 public:
  KernelInformation();
};

}  // namespace sampletemperature

// Makes the two classes known without loading the plug-in.
void RegisterSampleTemperature(platform::ComponentClasses& classes);
