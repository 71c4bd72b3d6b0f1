#pragma once

#include <gtest/gtest.h>

#include <filesystem>

#include "components/CDDComponents.h"
#include "components/LibraryClasses.h"
#include "dtmkit/Names.h"
#include "linksim/DeviceLink.h"
#include "platform/Platform.h"

namespace test_support {

using namespace ZAFHartTypes;  // NOLINT(google-build-using-namespace)
using dtmkit::MenuNamed;
using dtmkit::VariableNamed;

inline const std::filesystem::path kDtmFolder = ZAF_DTM_FOLDER;

// A DTM that ships with the library, loaded as a plug-in, on an emulated device with the memory of
// one of its files.
class DtmOnDevice {
 public:
  DtmOnDevice(const std::string& project, const std::string& file,
              const std::string& commWrapper = "ZAFHartLib.CDDTestCommWrapper") {
    if (!file.empty()) {
      device_->UseFile(kDtmFolder / file,
                       HartLinkSim::EmulatedDevice::SaveMode::OnDemand);  // never saved
    }
    ZAFHartLib::RegisterLibraryClasses(platform_.Classes());
    platform_.Classes().SetPluginPath({kDtmFolder});
    components_->SetDataModelClass(project + ".DataModel");
    components_->SetCommWrapperClass(commWrapper);
    components_->Initialize();
    UseLink(std::make_shared<HartLinkSim::DeviceLink>(device_));
  }
  ~DtmOnDevice() { components_->PrepareTermination(); }
  DtmOnDevice(const DtmOnDevice&) = delete;
  DtmOnDevice& operator=(const DtmOnDevice&) = delete;

  void UseLink(std::shared_ptr<ILink> link) {
    std::dynamic_pointer_cast<ILinkUser>(components_->HARTComm())->SetLink(std::move(link));
  }

  void Upload() {
    Definition menu;
    components_->Upload(menu);
    EXPECT_EQ(menu.Name(), "upload_variables");
  }
  std::shared_ptr<Variable> Get(std::string_view name) {
    return components_->DDKernel()->GetVariable(VariableNamed(name));
  }
  void Edit(std::string_view name, const Variant& value) {
    components_->DDWorkerDB()->WriteValue(VariableNamed(name), value);
  }
  Variant InDevice(std::string_view name) { return device_->Value(name).value_or(Variant()); }

  platform::Platform platform_{std::make_unique<platform::ManualClock>()};
  platform::PlatformScope scope_{platform_};
  std::shared_ptr<HartLinkSim::EmulatedDevice> device_ =
      std::make_shared<HartLinkSim::EmulatedDevice>();
  std::shared_ptr<ZAFHartLib::CDDComponents> components_ = ZAFHartLib::CDDComponents::Create();
};

// The sample DTM on the demo device.
class SampleDtm : public DtmOnDevice {
 public:
  SampleDtm() : DtmOnDevice("SampleTemperature", "demo-device.txt") {}
};

class SampleDevice : public testing::Test, public SampleDtm {};

}  // namespace test_support
