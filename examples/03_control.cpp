// A control: shows a live value as it changes and answers the messages of a method.
//
//   control FOLDER-OF-DTMS
#include <cstdio>
#include <filesystem>

#include "components/CDDComponents.h"
#include "components/LibraryClasses.h"
#include "gui/CDDDTMGUI.h"
#include "interfaces/ControlBase.h"
#include "interfaces/IGuiCtrl.h"
#include "linksim/DeviceLink.h"
#include "platform/Platform.h"
#include "text/DisplayString.h"
#include "text/LangText.h"

namespace {

using namespace ZAFHartTypes;

const Definition& Temperature() {
  static const auto name = Definition::Define("primary_variable", ObjectKind::Variable);
  return name;
}

// The GUI manager asks what is live, reads it in the background, and shows what has changed.
class Panel : public ControlBase, public IGuiCont2 {
 public:
  bool HasShown() const { return hasShown_; }

  void ShowObject(const std::shared_ptr<DDObject>& object) override {
    const auto variable = object->MakeVariable();
    if (!variable || !variable->Definition().IsSameAs(Temperature()) || !variable->Available())
      return;
    std::printf("%s: %s %s\n", ZAFHartLib::LangText(variable->Label(), LanguageID()).c_str(),
                ZAFHartLib::GetVariableDisplayString(*variable).c_str(),
                ZAFHartLib::LangText(variable->UnitText(), LanguageID()).c_str());
    hasShown_ = true;
  }

  // The texts come in the user's language. A message that asks for a value takes it in `input`;
  // one that only informs is read when this returns.
  std::int32_t ShowUserMessage(UserMessage& message) override {
    std::printf("[%s] %s\n", message.title.c_str(), message.prompt.c_str());
    if (message.input) {
      message.input->SetValue(1);  // "Yes"
      std::printf("> %s\n", ZAFHartLib::LangText(
                                ZAFHartLib::GetVariableDisplayString(*message.input), LanguageID())
                                .c_str());
    }
    return 0;
  }

  std::uint64_t ThreadID() const override { return platform::ThreadId(); }
  std::uintptr_t hAppInstance() const override { return platform::ApplicationInstance(); }
  void CollectRefreshData(DefinitionList& live) override { live.Add(Temperature()); }
  void CollectObservedData(DefinitionList&) override {}

 private:
  bool hasShown_ = false;
};

std::shared_ptr<ZAFHartLib::CDDComponents> OpenDtm(const char* folder) {
  auto& classes = platform::Current().Classes();
  ZAFHartLib::RegisterLibraryClasses(classes);
  classes.SetPluginPath({std::filesystem::absolute(folder)});
  auto dtm = ZAFHartLib::CDDComponents::Create();
  dtm->SetDataModelClass("SampleTemperature.DataModel");
  dtm->SetCommWrapperClass("ZAFHartLib.CDDTestCommWrapper");
  dtm->Initialize();
  auto device = std::make_shared<HartLinkSim::EmulatedDevice>();
  device->SetValue("primary_variable", 21.5);
  std::dynamic_pointer_cast<ILinkUser>(dtm->HARTComm())
      ->SetLink(std::make_shared<HartLinkSim::DeviceLink>(device));
  return dtm;
}

void Run(const char* folder) {
  const auto dtm = OpenDtm(folder);
  const auto gui = std::dynamic_pointer_cast<ZAFHartLib::CDDDTMGUI>(dtm->DDGUI());
  const auto panel = std::make_shared<Panel>();
  gui->SetLanguageID("de");
  panel->SetLanguageID("de");
  panel->SetComponentModel(dtm);
  gui->RegisterCtrl(panel);
  gui->SetMessageControl(panel);

  while (!panel->HasShown()) platform::Current().Loop().WaitStep(platform::Milliseconds(100));
  dtm->DDKernel()->ExecuteMethod(Definition::Define("self_test", ObjectKind::Method), nullptr);
  gui->UnregisterCtrl(panel);
  dtm->PrepareTermination();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: control FOLDER-OF-DTMS\n");
    return 2;
  }
  try {
    Run(argv[1]);
    return 0;
  } catch (const Failure& failure) {
    std::fprintf(stderr, "%s: %s\n", failure.Source().c_str(), failure.Description().c_str());
    return 1;
  }
}
