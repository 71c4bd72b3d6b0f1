#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <unordered_map>

#include "ScalableModel.h"

namespace {

using namespace ZAFHartTypes;
using dtmkit::DeviceDescription;

constexpr std::int16_t kCelsius = 32;
constexpr std::int16_t kFahrenheit = 33;

const Definition& Changed() {
  static const Definition definition = Definition::Define("changed", ObjectKind::Variable);
  return definition;
}

std::string DependentName(std::size_t i) {
  return "dependent_" + std::to_string(i);
}

// A variable "changed" that is a unit, and one that is not related to it, "other".
void DescribeVariables(DeviceDescription& dd, std::size_t dependents) {
  bench::DescribeDevice(dd);
  for (const char* name : {"changed", "other"}) {
    dd.Variable(name)
        .Enumerated(1, dtmkit::MakeEnums({{kCelsius, "°C"}, {kFahrenheit, "°F"}}))
        .Default(kCelsius)
        .Local();
  }
  for (std::size_t i = 0; i < dependents; ++i)
    dd.Variable(DependentName(i)).Float().Default(20.0F).Local();
}

// `count` refresh relations, each triggered by the variable and with a dependent of its own.
void DescribeRefreshes(DeviceDescription& dd, std::size_t count, const char* trigger) {
  DescribeVariables(dd, count);
  for (std::size_t i = 0; i < count; ++i) {
    dd.RefreshRelation("refresh_" + std::to_string(i))
        .Triggers({trigger})
        .Refreshes({DependentName(i)});
  }
}

// As many refresh relations as unit relations, all of "changed".
void DescribeBoth(DeviceDescription& dd, std::size_t count) {
  DescribeVariables(dd, count);
  for (std::size_t i = 0; i < count; ++i) {
    if (i % 2 == 0) {
      dd.RefreshRelation("refresh_" + std::to_string(i))
          .Triggers({"changed"})
          .Refreshes({DependentName(i)});
    } else {
      dd.UnitRelation("unit_" + std::to_string(i)).Unit("changed").Dependents({DependentName(i)});
    }
  }
}

// The least that telling n dependents takes: find each by name, mark it.
void Floor_MarkDependents(benchmark::State& state) {
  std::unordered_map<std::string, bool> available;
  std::vector<std::string> names;
  for (std::size_t i = 0; i < static_cast<std::size_t>(state.range(0)); ++i) {
    names.push_back(DependentName(i));
    available[names.back()] = true;
  }
  for (auto _ : state) {
    for (const std::string& name : names) available.find(name)->second = false;
    benchmark::ClobberMemory();
  }
}
BENCHMARK(Floor_MarkDependents)->Arg(20);

// A write as the user's edit makes it: the value, then what is related to it.
void WriteValue_Relations(benchmark::State& state) {
  DeviceDescription dd;
  DescribeBoth(dd, static_cast<std::size_t>(state.range(0)));
  const auto components = bench::MakeInstance(dd);
  const auto database = components->DDWorkerDB();
  const auto kernel = components->DDKernel();
  std::int16_t unit = kCelsius;
  for (auto _ : state) {
    unit = unit == kCelsius ? kFahrenheit : kCelsius;
    database->WriteValue(Changed(), unit);
    kernel->ExecuteRelations(Changed());
  }
}
BENCHMARK(WriteValue_Relations)->Arg(20)->Unit(benchmark::kMicrosecond);

void ExecuteRelations(benchmark::State& state, const char* trigger) {
  DeviceDescription dd;
  DescribeRefreshes(dd, static_cast<std::size_t>(state.range(0)), trigger);
  const auto components = bench::MakeInstance(dd);
  const auto kernel = components->DDKernel();
  for (auto _ : state) kernel->ExecuteRelations(Changed());
  state.SetComplexityN(state.range(0));
}
BENCHMARK_CAPTURE(ExecuteRelations, Naming, "changed")->Arg(10)->Arg(100)->Arg(1000)->Arg(10000);
BENCHMARK_CAPTURE(ExecuteRelations, Others, "other")->Arg(10)->Arg(100)->Arg(1000)->Arg(10000);

}  // namespace
