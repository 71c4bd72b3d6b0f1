// Hosts a DTM: loads the data set of an emulated device, shows some of it and changes a value.
//
//   host FOLDER-OF-DTMS [REGISTRY-FILE FOLDER-OF-PLUG-INS]
#include <cstdio>
#include <filesystem>

#include "components/CDDComponents.h"
#include "components/LibraryClasses.h"
#include "linksim/DeviceLink.h"
#include "platform/Platform.h"
#include "text/DisplayString.h"
#include "text/LangText.h"

namespace {

using namespace ZAFHartTypes;
namespace fs = std::filesystem;

constexpr const char* kLanguage = "en";

Definition VariableNamed(const char* name) {
  return Definition::Define(name, ObjectKind::Variable);
}

// Texts are multilingual; a unit comes from a unit variable or is fixed.
void Show(ZAFHartLib::CDDComponents& dtm, const char* name) {
  const auto variable = dtm.DDKernel()->GetVariable(VariableNamed(name));
  const std::string label = ZAFHartLib::LangText(variable->Label(), kLanguage);
  const std::string value =
      ZAFHartLib::LangText(ZAFHartLib::GetVariableDisplayString(*variable), kLanguage);
  const std::string& unit =
      variable->UnitText().empty() ? variable->FixedUnitText() : variable->UnitText();
  std::printf("%s: %s%s%s\n", label.c_str(), value.c_str(), unit.empty() ? "" : " ",
              ZAFHartLib::LangText(unit, kLanguage).c_str());
}

// What the library needs once per thread, before the first DTM.
void Prepare(int argc, char** argv) {
  auto& platform = platform::Current();
  ZAFHartLib::RegisterLibraryClasses(platform.Classes());
  std::vector<fs::path> folders{fs::absolute(argv[1])};
  if (argc > 3) {
    platform.Registry().Load(argv[2]);
    folders.push_back(fs::absolute(argv[3]));
  }
  platform.Classes().SetPluginPath(folders);
}

std::shared_ptr<ZAFHartLib::CDDComponents> OpenDtm(std::shared_ptr<ILink> link) {
  auto dtm = ZAFHartLib::CDDComponents::Create();
  dtm->SetDataModelClass("SampleTemperature.DataModel");
  dtm->SetCommWrapperClass("ZAFHartLib.CDDTestCommWrapper");
  dtm->Initialize();
  std::dynamic_pointer_cast<ILinkUser>(dtm->HARTComm())->SetLink(std::move(link));
  return dtm;
}

void Run(int argc, char** argv) {
  Prepare(argc, argv);
  // The device's memory comes from a file; without SaveMode::OnDemand it would be kept there.
  auto device = std::make_shared<HartLinkSim::EmulatedDevice>();
  device->UseFile(fs::path(argv[1]) / "demo-device.txt",
                  HartLinkSim::EmulatedDevice::SaveMode::OnDemand);
  const auto dtm = OpenDtm(std::make_shared<HartLinkSim::DeviceLink>(device));

  Definition menu;  // that of the DTM which lists what is to be loaded
  dtm->Upload(menu);
  for (const char* name : {"tag", "sensor_type", "upper_range_value", "damping_value"})
    Show(*dtm, name);

  dtm->DDWorkerDB()->WriteValue(VariableNamed("damping_value"), 4.0);
  dtm->WriteChanges();
  std::printf("The device has now: %s\n", device->Value("damping_value")->ToText().c_str());
  dtm->PrepareTermination();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2 && argc != 4) {
    std::fprintf(stderr, "usage: host FOLDER-OF-DTMS [REGISTRY-FILE FOLDER-OF-PLUG-INS]\n");
    return 2;
  }
  try {
    Run(argc, argv);
    return 0;
  } catch (const Failure& failure) {
    std::fprintf(stderr, "%s: %s\n", failure.Source().c_str(), failure.Description().c_str());
    return 1;
  }
}
