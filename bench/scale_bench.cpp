#include <benchmark/benchmark.h>
#include <malloc.h>

#include "ScalableModel.h"
#include "gui/CDDDTMGUI.h"
#include "interfaces/ControlBase.h"
#include "platform/Platform.h"

// What a large plant costs: many commands in one DTM, many instances in one process.
namespace {

using namespace ZAFHartTypes;
using ZAFHartLib::CDDComponents;

// Each command reads its own variables: the one that reads the last is visited last by a walk.
void FindReadCommand(benchmark::State& state) {
  const auto commands = static_cast<std::size_t>(state.range(0));
  const std::size_t variables = 4 * commands;
  const auto components = bench::MakeInstance(variables);
  Definition menu;
  components->Upload(menu);  // computes all attributes
  const auto kernel = components->DDKernel();
  std::size_t i = 0;
  for (auto _ : state) {
    i = (i + 7919) % variables;
    benchmark::DoNotOptimize(kernel->FindReadCommand(bench::VariableDefinition(i)));
  }
}
BENCHMARK(FindReadCommand)->Arg(25)->Arg(250)->Arg(2500);

// A control that wants the same live values refreshed all the time.
class LiveControl : public ZAFHartTypes::ControlBase, public IGuiCont2 {
 public:
  std::uint64_t ThreadID() const override { return platform::ThreadId(); }
  std::uintptr_t hAppInstance() const override { return platform::ApplicationInstance(); }
  void CollectRefreshData(DefinitionList& dynData) override {
    for (const char* name :
         {"primary_variable", "secondary_variable", "loop_current", "percent_of_range"}) {
      dynData.Add(Definition::Define(name, ObjectKind::Variable));
    }
  }
  void CollectObservedData(DefinitionList&) override {}
  void LifeSignal(LifeSignalCode code, const SignalObject&) override {
    if (code == LifeSignalCode::ExchangeFinished) ++exchanges;
  }
  int exchanges = 0;
};

// Instances of the sample DTM on one thread, each with a control of its own, and a clock that is
// moved by hand.
class Plant {
 public:
  explicit Plant(std::size_t instances) {
    for (std::size_t i = 0; i < instances; ++i) {
      instances_.push_back(bench::MakeSampleInstance());
      instances_.back()->HARTComm()->SetEmulate(false);
      controls_.push_back(std::make_shared<LiveControl>());
      const auto gui = std::dynamic_pointer_cast<ZAFHartLib::CDDDTMGUI>(instances_.back()->DDGUI());
      gui->RegisterCtrl(controls_.back());
    }
  }
  ~Plant() {
    for (const auto& instance : instances_) instance->PrepareTermination();
  }
  // Lets the live values expire and runs what is due until all instances have read them.
  void RunRound() {
    constexpr int kTicks = 55;  // of 200 ms; live values expire after 10 s
    for (int tick = 0; tick < kTicks; ++tick) {
      clock_->Advance(platform::Milliseconds(200));
      while (platform_.Loop().Pump()) {
      }
    }
  }
  double Exchanges() const {
    double sum = 0;
    for (const auto& control : controls_) sum += control->exchanges;
    return sum;
  }

 private:
  platform::ManualClock* clock_ = new platform::ManualClock;  // owned by the platform
  platform::Platform platform_{std::unique_ptr<platform::Clock>(clock_)};
  platform::PlatformScope scope_{platform_};
  std::vector<std::shared_ptr<CDDComponents>> instances_;
  std::vector<std::shared_ptr<LiveControl>> controls_;
};

// Time to make the instances, and the bytes that they hold.
void Instances(benchmark::State& state) {
  const auto before = mallinfo2();
  for (auto _ : state) {
    const Plant plant(static_cast<std::size_t>(state.range(0)));
    const auto after = mallinfo2();
    state.counters["bytes"] =
        static_cast<double>((after.uordblks + after.hblkhd) - (before.uordblks + before.hblkhd));
  }
}
BENCHMARK(Instances)->Arg(10)->Arg(100)->Arg(1000)->Iterations(1)->Unit(benchmark::kMillisecond);

// One refresh of four live values in each instance, with the eleven seconds of ticks around it.
void RefreshRound(benchmark::State& state) {
  Plant plant(static_cast<std::size_t>(state.range(0)));
  plant.RunRound();
  const double before = plant.Exchanges();
  for (auto _ : state) plant.RunRound();
  state.counters["exchanges"] = (plant.Exchanges() - before) /
                                static_cast<double>(state.iterations()) /
                                static_cast<double>(state.range(0));
}
BENCHMARK(RefreshRound)
    ->Arg(10)
    ->Arg(100)
    ->Arg(1000)
    ->Iterations(20)
    ->Unit(benchmark::kMillisecond);

}  // namespace
