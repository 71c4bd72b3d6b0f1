#include "sampletemperature/SampleTemperature.h"

#include "platform/ModuleFolder.h"
#include "sampletemperature/Description.h"

namespace sampletemperature {

DataModel::DataModel() : DataModelBase(Description()) {}

// The INI file lies beside the plug-in, or beside the program that the DTM is built into.
KernelInformation::KernelInformation()
    : KernelInformationBase(
          platform::ModuleFolder(reinterpret_cast<const void*>(&RegisterSampleTemperature)),
          "sampletemperature.so",
          {{ZAFHartTypes::StandardName::UploadVariables, "upload_variables"},
           {ZAFHartTypes::StandardName::OnlineParameters, "online_parameters"},
           {ZAFHartTypes::StandardName::ProcessVariables, "process_variables"},
           {ZAFHartTypes::StandardName::StatusDisplay, "status_display"}}) {
  Supports({.expandedType = 0xFA10, .lowestRevision = 1, .highestRevision = 2});
}

}  // namespace sampletemperature

void RegisterSampleTemperature(platform::ComponentClasses& classes) {
  classes.Register("SampleTemperature.DataModel",
                   [] { return std::make_shared<sampletemperature::DataModel>(); });
  classes.Register("SampleTemperature.KernelInformation",
                   [] { return std::make_shared<sampletemperature::KernelInformation>(); });
}
