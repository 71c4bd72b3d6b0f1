#include <benchmark/benchmark.h>
#include <malloc.h>

#include <memory>
#include <string>
#include <unordered_map>

#include "ScalableModel.h"
#include "workerdb/CDDWorkerDB.h"

namespace {

using namespace ZAFHartTypes;
using ZAFHartLib::CDDComponents;

constexpr std::size_t kVariables = 1000;

// --- look-ups ---

// What a current variable costs at least: a hash map by name, and a copy of its own of what a
// variable holds, as plain members.
struct PlainRecord {
  std::string name;
  std::string label;
  std::string help;
  std::string unit;
  std::string error;
  double value = 0;
  double defaultValue = 0;
  int flags = 0;
};

void Floor_MapLookupAndCopy(benchmark::State& state) {
  std::unordered_map<std::string, PlainRecord> records;
  std::vector<std::string> names;
  for (std::size_t i = 0; i < kVariables; ++i) {
    names.push_back(bench::VariableName(i));
    records[names.back()] = {names.back(), "Variable|de|Variable", "", "", "", 1.5, 1.5, 0};
  }
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        std::make_shared<PlainRecord>(records.find(names[i++ % kVariables])->second));
  }
}
BENCHMARK(Floor_MapLookupAndCopy);

std::vector<Definition> AllVariables() {
  std::vector<Definition> definitions;
  for (std::size_t i = 0; i < kVariables; ++i) definitions.push_back(bench::VariableDefinition(i));
  return definitions;
}

// An instance whose variables have all been read.
std::shared_ptr<CDDComponents> MakeLoadedInstance() {
  auto components = bench::MakeInstance(kVariables);
  Definition menu;
  components->Upload(menu);
  return components;
}

void GetVariable_Current(benchmark::State& state) {
  const auto components = MakeLoadedInstance();
  const auto kernel = components->DDKernel();
  const auto definitions = AllVariables();
  std::size_t i = 0;
  for (auto _ : state) benchmark::DoNotOptimize(kernel->GetVariable(definitions[i++ % kVariables]));
}
BENCHMARK(GetVariable_Current);

void ReadVariable_Available(benchmark::State& state) {
  const auto components = MakeLoadedInstance();
  const auto kernel = components->DDKernel();
  const auto definitions = AllVariables();
  std::size_t i = 0;
  for (auto _ : state)
    benchmark::DoNotOptimize(kernel->ReadVariable(definitions[i++ % kVariables]));
}
BENCHMARK(ReadVariable_Available);

void WriteValue_NoRelation(benchmark::State& state) {
  const auto components = MakeLoadedInstance();
  const auto database = components->DDWorkerDB();
  const Definition variable = bench::VariableDefinition(kVariables - 1);
  float value = 0;
  for (auto _ : state) database->WriteValue(variable, value += 1.0F);
}
BENCHMARK(WriteValue_NoRelation);

// --- whole data sets and exchanges over the echo link ---

// The first upload of an instance also computes all attributes and builds the index of commands.
void FirstUpload_Echo(benchmark::State& state) {
  Definition menu;
  for (auto _ : state) {
    state.PauseTiming();
    auto components = bench::MakeInstance(static_cast<std::size_t>(state.range(0)));
    state.ResumeTiming();
    components->Upload(menu);
    state.PauseTiming();
    components.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(FirstUpload_Echo)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void Upload_Echo(benchmark::State& state) {
  const auto components = bench::MakeInstance(static_cast<std::size_t>(state.range(0)));
  Definition menu;
  components->Upload(menu);
  for (auto _ : state) components->Upload(menu);
}
BENCHMARK(Upload_Echo)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void WriteChanges_Echo(benchmark::State& state) {
  const auto count = static_cast<std::size_t>(state.range(0));
  const auto components = bench::MakeInstance(count);
  Definition menu;
  components->Upload(menu);
  float value = 0;
  for (auto _ : state) {
    state.PauseTiming();
    value += 1.0F;
    for (std::size_t i = 0; i < count; ++i)
      components->DDWorkerDB()->WriteValue(bench::VariableDefinition(i), value);
    state.ResumeTiming();
    components->WriteChanges();
  }
}
BENCHMARK(WriteChanges_Echo)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void Exchange_Echo(benchmark::State& state) {
  const auto components = bench::MakeInstance(100);
  const auto kernel = components->DDKernel();
  const auto comm = components->HARTComm();
  const auto command =
      kernel->GetCommand(Definition::Define("read_ten", ObjectKind::Command))->CommandCopy();
  kernel->ExecuteCommand(command, 0);  // binds the items
  const auto& transaction = command->Transactions().Item(0);
  for (auto _ : state)
    benchmark::DoNotOptimize(comm->ExecuteCommand(command->Number(), transaction));
}
BENCHMARK(Exchange_Echo);

void ExecuteCommand_Echo(benchmark::State& state) {
  const auto components = bench::MakeInstance(100);
  const auto kernel = components->DDKernel();
  const auto command =
      kernel->GetCommand(Definition::Define("read_ten", ObjectKind::Command))->CommandCopy();
  for (auto _ : state) kernel->ExecuteCommand(command, 0);
}
BENCHMARK(ExecuteCommand_Echo);

// --- memory ---

// Bytes held by one more instance of the sample DTM, with all of its objects computed.
void Memory_Instance(benchmark::State& state) {
  const auto first = bench::MakeSampleInstance();  // what all instances share
  constexpr std::size_t kInstances = 10;
  double bytes = 0;
  for (auto _ : state) {
    std::vector<std::shared_ptr<CDDComponents>> instances;
    const auto before = mallinfo2();
    for (std::size_t i = 0; i < kInstances; ++i) {
      instances.push_back(bench::MakeSampleInstance());
      Definition menu;
      instances.back()->Upload(menu);
    }
    const auto after = mallinfo2();
    const auto held = (after.uordblks + after.hblkhd) - (before.uordblks + before.hblkhd);
    bytes = static_cast<double>(held) / static_cast<double>(kInstances);
  }
  state.counters["bytes"] = bytes;
}
BENCHMARK(Memory_Instance)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
