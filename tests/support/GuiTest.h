#pragma once

#include <gmock/gmock.h>

#include "gui/CDDDTMGUI.h"
#include "interfaces/IAsyncReader.h"
#include "settings/Settings.h"
#include "support/RecordingControl.h"
#include "support/RecordingTracer.h"
#include "support/StubComponents.h"
#include "support/TestPlatform.h"
#include "trace/CEmptyErrorHandler.h"
#include "workerdb/CDDWorkerDB.h"

namespace test_support {

using namespace ZAFHartLib;  // NOLINT(google-build-using-namespace)
using testing::ElementsAre;
using testing::IsEmpty;

// A kernel whose background reads the test finishes.
class AsyncKernel : public StubKernel, public IAsyncReader {
 public:
  std::shared_ptr<CommandRef> AsyncReadVariableEx(const Definition& definition) override {
    calls.push_back("Async " + definition.Name());
    if (fails) throw Failure(ErrorNumber::Unexpected, "Kernel", "cannot read");
    started = starts ? std::make_shared<CommandRef>() : nullptr;
    if (started && onStart) onStart(started);
    return started;
  }
  std::shared_ptr<CommandRef> started;
  std::function<void(const std::shared_ptr<CommandRef>&)> onStart;
  bool starts = true;
  bool fails = false;
};

// A GUI manager of an instance with a real database, on a clock that the test moves.
class GuiTest : public testing::Test, public TestPlatform {
 protected:
  GuiTest() {
    components->kernel = kernel;
    kernel->SetComponentModel(components);
    components->Use(database);
    components->gui = gui;
    gui->SetComponentModel(components);
  }
  ~GuiTest() override {
    IgnoreFailures([&] { gui->SetComponentModel(nullptr); });
  }

  std::shared_ptr<RecordingControl> Register() {
    auto control = std::make_shared<RecordingControl>();
    gui->RegisterCtrl(control);
    control->TakeCalls();
    return control;
  }
  void Setting(std::string_view name, const char* value) {
    platform.Registry().SetValue(kDtmsKey, name, value);
    gui->SetComponentModel(components);
  }
  static std::shared_ptr<Variable> MakeVariable(const char* name, const char* label = "") {
    auto variable = MakeObject<Variable>(name);
    variable->SetLabel(label);
    return variable;
  }

  std::shared_ptr<RecordingTracer> tracer = RecordingTracer::Install(platform);
  std::shared_ptr<CDDDTMGUI> gui = std::make_shared<CDDDTMGUI>();
  std::shared_ptr<AsyncKernel> kernel = std::make_shared<AsyncKernel>();
  std::shared_ptr<CDDWorkerDB> database = std::make_shared<CDDWorkerDB>();
  std::shared_ptr<StubComponents> components = StubComponents::Create();
  StubComm& comm = static_cast<StubComm&>(*components->comm);
};

}  // namespace test_support
