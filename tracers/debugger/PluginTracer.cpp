#include "debugger/PluginTracer.h"

#include "components/CDDComponents.h"
#include "debugger/StandardTerminal.h"
#include "platform/Platform.h"
#include "settings/Settings.h"
#include "types/Failure.h"

namespace ZAFHartDebugger {

namespace {

std::string Setting(std::string_view name) {
  return platform::Current().Registry().Value(ZAFHartLib::kTracerKey, name).value_or("");
}

void CancelOperation(const StopPlace& place) {
  const auto components = std::dynamic_pointer_cast<ZAFHartLib::CDDComponents>(
      place.database ? place.database->ComponentModel() : nullptr);
  if (components) components->CancelOperation();
}

std::shared_ptr<Debugger> MakeDebugger() {
  const auto terminal = std::make_shared<StandardTerminal>();
  auto debugger = std::make_shared<Debugger>(terminal);
  debugger->SetOnQuit(CancelOperation);
  try {
    if (const std::string file = Setting("File"); !file.empty()) terminal->WriteTo(file);
  } catch (const ZAFHartTypes::Failure& failure) {
    debugger->View().Line(Colour::Error, failure.Description());
  }
  debugger->RunScript(Setting("Commands"));
  return debugger;
}

}  // namespace

PluginTracer::PluginTracer() : Tracer(MakeDebugger()) {}

void PluginTracer::Terminate() {
  Tracer::Terminate();
  Shared().End();
}

}  // namespace ZAFHartDebugger
