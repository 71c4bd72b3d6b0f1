#include "gui/DynamicRefresh.h"

#include <algorithm>
#include <utility>

#include "gui/CDDDTMGUI.h"
#include "gui/ControlList.h"
#include "interfaces/IAsyncReader.h"
#include "interfaces/IDDComponents.h"
#include "platform/Platform.h"
#include "settings/Interval.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::CommandRef;
using ZAFHartTypes::Definition;
using ZAFHartTypes::DefinitionList;
using ZAFHartTypes::Failure;
using ZAFHartTypes::IAsyncReader;
using ZAFHartTypes::IDDComponents;
using ZAFHartTypes::IDDDTMGUI;
using ZAFHartTypes::IDDWorkerDB;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::Variable;

constexpr platform::Milliseconds kTimerInterval{200};
constexpr platform::TickCount kCollectionInterval = 1000;  // ms
constexpr std::int32_t kReadNext = 1;                      // the one signal there is
constexpr std::int32_t kCollectionTraceLevel = 2;
constexpr const char* kTimerEvent = "m_tmrAsynchronizer_TimerEvent";
constexpr const char* kSignalEvent = "m_tmrAsynchronizer_SignalEvent";

// The variable when it is to be read; nothing for what the refresh leaves out.
std::shared_ptr<Variable> StaleVariable(IDDWorkerDB& database, const Definition& definition) {
  if (definition.Kind() != ObjectKind::Variable) return nullptr;
  const auto object = database.ReadObject(definition);
  const auto variable = object ? object->MakeVariable() : nullptr;
  const bool stale = variable && variable->Validity() && !variable->Available() &&
                     !variable->Attributes().IsLibraryHeld();
  return stale ? variable : nullptr;
}

}  // namespace

DynamicRefresh::DynamicRefresh(CDDDTMGUI& gui, const ControlList& controls)
    : gui_(gui),
      controls_(controls),
      asynchronizer_([this] { Trapped(kTimerEvent, [this] { OnTimer(); }); },
                     [this](std::int32_t id) { Trapped(kSignalEvent, [&] { OnSignal(id); }); }) {}

void DynamicRefresh::Start() {
  asynchronizer_.Start(kTimerInterval);
}

void DynamicRefresh::Reset() {
  Stop();
  refreshList_.Clear();
  runningRead_.reset();
  runningDefinition_ = {};
}

template <typename Step>
void DynamicRefresh::Trapped(const char* name, Step&& step) {
  const auto alive = gui_.weak_from_this().lock();
  try {
    step();
  } catch (const Failure& failure) {
    gui_.TraceFailure(std::string(name) + ": The refresh of variables failed", failure);
  }
}

void DynamicRefresh::OnTimer() {
  if (runningDefinition_) {
    controls_.ForEach(kTimerEvent, [&](CGUIObj& entry, IDDDTMGUI&) {
      entry.AsyncReadVariableProgress(runningDefinition_);
    });
    return;
  }
  if (refreshList_.IsEmpty() && IntervalElapsed(lastCollection_, kCollectionInterval)) {
    CollectRefreshData();
  }
  if (!refreshList_.IsEmpty()) asynchronizer_.Signal(kReadNext);
}

void DynamicRefresh::CollectRefreshData() {
  const auto trace = gui_.TraceObject();
  const bool traced = trace->WantsText(kCollectionTraceLevel);
  const auto write = [&](const std::string& text) {
    if (traced) trace->TraceText(kCollectionTraceLevel, kTimerEvent + text);
  };
  controls_.ForEach(kTimerEvent, [&](CGUIObj& entry, IDDDTMGUI&) {
    write(": Start CollectRefreshData");
    entry.CollectRefreshData(refreshList_);
    write(": Finished CollectRefreshData Count(" + std::to_string(refreshList_.Count()) + ")");
  });
}

void DynamicRefresh::OnSignal(std::int32_t id) {
  const auto components = gui_.ComponentModel();
  if (!components || id != kReadNext || runningDefinition_ || gui_.IsUILocked()) return;
  const auto database = components->DDWorkerDB();
  // Without a choice and with entries left (read after the present moment: the clock was set back)
  // the timer signals again.
  if (const Definition stalest = database ? ChooseStalest(*database) : Definition()) {
    Read(*components, stalest);
  }
}

Definition DynamicRefresh::ChooseStalest(IDDWorkerDB& database) {
  Variable::Time earliest = platform::Current().GetClock().WallTime();
  Definition stalest;
  DefinitionList remaining;
  for (const Definition& definition : DefinitionList(refreshList_)) {
    const auto variable = StaleVariable(database, definition);
    if (!variable) continue;
    remaining.Add(definition);
    if (variable->LastReadTime() < earliest) {
      earliest = variable->LastReadTime();
      stalest = definition;
    }
  }
  refreshList_ = std::move(remaining);
  return stalest;
}

void DynamicRefresh::Read(IDDComponents& components, const Definition& definition) {
  runningDefinition_ = definition;
  finishedEarly_.clear();
  Trapped(kSignalEvent, [&] { runningRead_ = StartRead(components, definition); });
  if (!runningRead_) {
    runningDefinition_ = {};
    ReadAtOnce(components, definition);
  } else if (std::ranges::find(finishedEarly_, runningRead_) != finishedEarly_.end()) {
    ReadNext();
  }
}

std::shared_ptr<CommandRef> DynamicRefresh::StartRead(IDDComponents& components,
                                                      const Definition& definition) {
  const auto reader = std::dynamic_pointer_cast<IAsyncReader>(components.DDKernel());
  return reader ? reader->AsyncReadVariableEx(definition) : nullptr;
}

void DynamicRefresh::ReadAtOnce(IDDComponents& components, const Definition& definition) {
  Trapped(kSignalEvent, [&] {
    if (const auto kernel = components.DDKernelExtension()) kernel->ReadVariable(definition);
  });
  DropFromList(definition);
  asynchronizer_.Signal(kReadNext);
}

void DynamicRefresh::DropFromList(const Definition& definition) {
  if (const std::size_t position = refreshList_.IndexOf(definition)) refreshList_.Remove(position);
}

void DynamicRefresh::OnExchangeFinished(const std::shared_ptr<CommandRef>& reference) {
  if (!reference || !runningDefinition_) return;
  if (!runningRead_) {
    finishedEarly_.push_back(reference);
  } else if (reference == runningRead_) {
    ReadNext();
  }
}

// A variable whose read has failed waits for the next collection, so that a silent device is not
// asked without a pause, and for the same variable only.
void DynamicRefresh::ReadNext() {
  DropFromList(runningDefinition_);
  runningRead_.reset();
  runningDefinition_ = {};
  asynchronizer_.Signal(kReadNext);
}

}  // namespace ZAFHartLib
