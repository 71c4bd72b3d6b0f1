#include "generic/Generic.h"

#include "generic/Description.h"
#include "platform/ModuleFolder.h"

namespace generic {

DataModel::DataModel() : DataModelBase(Description()) {}

// The INI file, if there is one, lies beside the plug-in.
KernelInformation::KernelInformation()
    : KernelInformationBase(platform::ModuleFolder(reinterpret_cast<const void*>(&Description)),
                            "generic.so",
                            {{StandardName::UploadVariables, "upload_variables"},
                             {StandardName::OnlineParameters, "online_parameters"},
                             {StandardName::ProcessVariables, "process_variables"},
                             {StandardName::StatusDisplay, "status_display"}}) {}

}  // namespace generic
