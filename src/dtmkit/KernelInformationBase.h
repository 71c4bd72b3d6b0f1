#pragma once

#include <filesystem>
#include <initializer_list>
#include <utility>

#include "ddobjects/IDDDataModel.h"

namespace ZAFHartTypes::dtmkit {

// A DTM's kernel information: a table of standard names and the place of its component file.
class KernelInformationBase : public platform::Object, public IKernelInformation {
 public:
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

  std::string StandardName(ZAFHartTypes::StandardName index) override;
  std::string ComponentFolder() override { return folder_.string(); }
  std::string ComponentFileName() override { return fileName_; }
  std::int32_t DataModelVersion() override { return dataModelVersion_; }

 private:
  std::filesystem::path folder_;
  std::string fileName_;
  std::vector<std::pair<ZAFHartTypes::StandardName, std::string>> names_;
  std::int32_t dataModelVersion_;
};

}  // namespace ZAFHartTypes::dtmkit
