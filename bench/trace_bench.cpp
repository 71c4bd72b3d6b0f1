// What a debugger costs the operations that it traces. GetVariable_Current and ExecuteCommand_Echo
// are the same without one.
#include <benchmark/benchmark.h>

#include "ScalableModel.h"
#include "debugger/Tracer.h"
#include "gui/CDDDTMGUI.h"
#include "platform/Platform.h"
#include "settings/Settings.h"
#include "trace/CExternalTraceConnection.h"

namespace {

using namespace ZAFHartTypes;

class NullTerminal : public ZAFHartDebugger::Terminal {
 public:
  void Write(std::string_view line) override { benchmark::DoNotOptimize(line.data()); }
  std::optional<std::string> ReadLine(std::string_view) override { return std::nullopt; }
  bool ShowsColours() const override { return false; }
};

std::shared_ptr<ZAFHartLib::CDDComponents> MakeTraced(const char* script) {
  auto components = bench::MakeInstance(100);
  Definition menu;
  components->Upload(menu);
  const auto debugger =
      std::make_shared<ZAFHartDebugger::Debugger>(std::make_shared<NullTerminal>());
  debugger->RunScript(script);
  auto& platform = platform::Current();
  platform.Classes().Register(
      "Bench.Tracer", [debugger] { return std::make_shared<ZAFHartDebugger::Tracer>(debugger); });
  platform.Registry().SetValue(ZAFHartLib::kTracerKey, ZAFHartLib::kTracerClassName,
                               "Bench.Tracer");
  dynamic_cast<ZAFHartLib::CDDDTMGUI&>(*components->DDGUI())
      .SetExternalTracer(std::make_shared<ZAFHartLib::CExternalTraceConnection>());
  platform.Registry().SetValue(ZAFHartLib::kTracerKey, ZAFHartLib::kTracerClassName, "");
  return components;
}

void GetTraced(benchmark::State& state, const char* script) {
  const auto components = MakeTraced(script);
  const auto kernel = components->DDKernel();
  const Definition variable = bench::VariableDefinition(0);
  for (auto _ : state) benchmark::DoNotOptimize(kernel->GetVariable(variable));
}
BENCHMARK_CAPTURE(GetTraced, Shown, "level 1; depth 1; top 10");
BENCHMARK_CAPTURE(GetTraced, Filtered, "level 1; depth 1; top 0; filter nothing");
BENCHMARK_CAPTURE(GetTraced, ErrorsOnly, "level 0; depth 0; top 0");

void ExecuteTraced(benchmark::State& state) {
  const auto components = MakeTraced("level 1; depth 9; top 10");
  const auto kernel = components->DDKernel();
  const auto command =
      kernel->GetCommand(Definition::Define("read_ten", ObjectKind::Command))->CommandCopy();
  for (auto _ : state) kernel->ExecuteCommand(command, 0);
}
BENCHMARK(ExecuteTraced);

}  // namespace
