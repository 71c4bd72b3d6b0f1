#pragma once

#include <filesystem>
#include <initializer_list>
#include <utility>

#include "ddobjects/IDDDataModel.h"
#include "ddobjects/SupportedDevices.h"
#include "platform/Export.h"

namespace ZAFHartTypes::dtmkit {

// A DTM's kernel information: a table of standard names, the place of its component file and the
// devices that it is for.
class ZAF_API KernelInformationBase : public platform::Object,
                                      public IKernelInformation,
                                      public ISupportedDevices {
 public:
  // Standard menus by their DD names: {{StandardName::UploadVariables, "upload_variables"}}.
  using StandardNames = std::initializer_list<std::pair<ZAFHartTypes::StandardName, std::string>>;

  // `folder` and `fileName` lead to the INI file and the optimisation data that the DTM ships with;
  // the file itself need not be there. The part of `fileName` before its first "." names the DTM's
  // settings. `dataModelVersion`: see IKernelInformation.
  KernelInformationBase(std::filesystem::path folder, std::string fileName, StandardNames names,
                        std::int32_t dataModelVersion = 1)
      : folder_(std::move(folder)),
        fileName_(std::move(fileName)),
        names_(names),
        dataModelVersion_(dataModelVersion) {}

  // What the constructor was told; "" for a standard name that it was not.
  std::string StandardName(ZAFHartTypes::StandardName index) override;
  std::string ComponentFolder() override { return folder_.string(); }
  std::string ComponentFileName() override { return fileName_; }
  std::int32_t DataModelVersion() override { return dataModelVersion_; }
  std::vector<SupportedDevice> SupportedDevices() const override { return devices_; }

 protected:
  // Adds a device that the DTM is made for, for the constructor of a DTM's own class:
  //
  //   Supports({.expandedType = 0xFA10, .lowestRevision = 1, .highestRevision = 3});
  //
  // A DTM that names none takes every device.
  void Supports(const SupportedDevice& device) { devices_.push_back(device); }

 private:
  std::filesystem::path folder_;
  std::string fileName_;
  std::vector<std::pair<ZAFHartTypes::StandardName, std::string>> names_;
  std::int32_t dataModelVersion_;
  std::vector<SupportedDevice> devices_;
};

}  // namespace ZAFHartTypes::dtmkit
