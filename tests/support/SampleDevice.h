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

// The sample DTM, loaded as a plug-in, on an emulated transmitter with the demo device's memory.
class SampleDtm {
 public:
  SampleDtm() {
    device_->UseFile(kDtmFolder / "demo-device.txt",
                     HartLinkSim::EmulatedDevice::SaveMode::OnDemand);  // never saved
    ZAFHartLib::RegisterLibraryClasses(platform_.Classes());
    platform_.Classes().SetPluginPath({kDtmFolder});
    components_->SetDataModelClass("SampleTemperature.DataModel");
    components_->SetCommWrapperClass("ZAFHartLib.CDDTestCommWrapper");
    components_->Initialize();
    std::dynamic_pointer_cast<ILinkUser>(components_->HARTComm())
        ->SetLink(std::make_shared<HartLinkSim::DeviceLink>(device_));
  }
  ~SampleDtm() { components_->PrepareTermination(); }
  SampleDtm(const SampleDtm&) = delete;
  SampleDtm& operator=(const SampleDtm&) = delete;

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

class SampleDevice : public testing::Test, public SampleDtm {};

}  // namespace test_support
