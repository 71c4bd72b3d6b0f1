#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>

#include "ScalableModel.h"
#include "text/DisplayString.h"
#include "text/LangText.h"
#include "text/modDDPrintF.h"

namespace {

using namespace ZAFHartTypes;
using dtmkit::DeviceDescription;

constexpr int kCommands = 100;
constexpr const char* kPrompt = "%[L]{0}: %[8.3f]{0} mA|de|%[L]{0}: %[8.3f]{0} mA";

void Describe(DeviceDescription& dd) {
  bench::DescribeDevice(dd);
  dd.Variable("current").Label("Loop current|de|Schleifenstrom").Float().Default(12.34F).Local();
  dd.Method("send_commands").Label("Send").Body([](IDDBuiltinLib& builtins) {
    constexpr std::int16_t kReadTen = 127;
    for (int i = 0; i < kCommands; ++i) builtins.SendCommand(kReadTen);
  });
}

const DeviceDescription& Description() {
  static const auto description = [] {
    auto made = std::make_unique<DeviceDescription>();
    Describe(*made);
    return made;
  }();
  return *description;
}

// --- commands ---

// The same commands without a method around them.
void Floor_KernelCommands(benchmark::State& state) {
  const auto components = bench::MakeInstance(Description());
  const auto kernel = components->DDKernel();
  const auto command =
      kernel->GetCommand(Definition::Define("read_ten", ObjectKind::Command))->CommandCopy();
  for (auto _ : state) {
    for (int i = 0; i < kCommands; ++i) kernel->ExecuteCommand(command, 0);
  }
}
BENCHMARK(Floor_KernelCommands)->Unit(benchmark::kMillisecond);

void Method_SendCommands(benchmark::State& state) {
  const auto components = bench::MakeInstance(Description());
  const auto kernel = components->DDKernel();
  const auto method = Definition::Define("send_commands", ObjectKind::Method);
  const auto context = kernel->GetMethod(method);
  for (auto _ : state) kernel->ExecuteMethod(method, context);
}
BENCHMARK(Method_SendCommands)->Unit(benchmark::kMillisecond);

// --- prompts ---

void Floor_PromptSnprintf(benchmark::State& state) {
  char buffer[64];
  double value = 12.34;
  for (auto _ : state) {
    benchmark::DoNotOptimize(value);
    benchmark::DoNotOptimize(
        std::snprintf(buffer, sizeof buffer, "%s: %8.3f mA", "Loop current", value));
  }
}
BENCHMARK(Floor_PromptSnprintf);

// What the builtins do for a prompt with a variable's value and label.
void Prompt_Prepared(benchmark::State& state) {
  const auto components = bench::MakeInstance(Description());
  const auto variable =
      components->DDKernel()->GetVariable(Definition::Define("current", ObjectKind::Variable));
  PromptValues values;
  for (auto _ : state) {
    values.Set("0", ZAFHartLib::LangText(ZAFHartLib::GetVariableDisplayString(*variable), "en"));
    values.Set("0LABEL", ZAFHartLib::LangText(variable->Label(), "en"));
    benchmark::DoNotOptimize(
        ZAFHartLib::FormatDDString(ZAFHartLib::LangText(kPrompt, "en"), values));
  }
}
BENCHMARK(Prompt_Prepared);

// The whole way of a message, to a GUI manager that has no control to show it.
void Prompt_PutMessage(benchmark::State& state) {
  const auto components = bench::MakeInstance(Description());
  std::shared_ptr<DDObject> object =
      components->DDKernel()->GetMethod(Definition::Define("send_commands", ObjectKind::Method));
  const auto builtins = components->DDBuiltinLib(object, "send_commands");
  const VariableIds ids{builtins->VARID("current")};
  for (auto _ : state) builtins->PutMessage(kPrompt, ids);
}
BENCHMARK(Prompt_PutMessage);

}  // namespace
