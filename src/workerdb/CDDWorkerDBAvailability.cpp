// Availability and its expiry, and what follows from a change of a stored variable's marks.

#include "platform/Platform.h"
#include "types/Failure.h"
#include "workerdb/StoredObjects.h"

namespace ZAFHartLib {
namespace {

platform::TickCount Ticks() {
  return platform::Current().GetClock().CoarseTicks();
}

bool Bears(const Variable& variable, VariableMark mark) {
  return mark == VariableMark::Available ? variable.Available() : variable.ToBeWritten();
}

}  // namespace

std::optional<std::int32_t> SecondsOf(const Variant& interval) {
  std::optional<std::int32_t> seconds;
  ZAFHartTypes::IgnoreFailures([&] { seconds = interval.ToLong(); });
  return seconds == 0 ? kNoInterval : seconds;
}

void CDDWorkerDB::MakeAvailable(Variable& stored, bool available) {
  stored.SetAvailable(available);
  if (available) stored.SetAvailableSince(Ticks());
}

// Not for values that only the library or the user gives, and not while there is nothing to read
// them anew from.
bool CDDWorkerDB::HasExpired(const Variable& stored) const {
  if (!stored.Available() || stored.ToBeWritten()) return false;
  const auto& attributes = stored.Attributes();
  if (attributes.IsLibraryHeld()) return false;
  const std::int32_t seconds =
      attributes.IsDynamic() ? stored.DynAvailTime() : stored.StaticAvailTime();
  if (seconds < 0 || expirySuspension_.use_count() > 1) return false;
  const platform::TickCount age = Ticks() - stored.AvailableSince();
  return age >= std::int64_t{seconds} * 1000 && !Emulating();
}

bool CDDWorkerDB::Emulating() const {
  const auto components = model_.Get();
  const auto comm = components ? components->HARTComm() : nullptr;
  return comm && comm->Emulate();
}

void CDDWorkerDB::AfterChange(Variable& stored, const Marks& before) {
  const Marks now(stored);
  const ZAFHartTypes::TextKey name = stored.Definition().Key();
  if (now.available != before.available) {
    if (now.available) stored.SetAvailableSince(Ticks());
    CountMark(VariableMark::Available, name, now.available);
  }
  if (now.missing != before.missing) MissingChanged(name, now.missing);
  if (now.toBeWritten != before.toBeWritten) {
    CountMark(VariableMark::ToBeWritten, name, now.toBeWritten);
  }
  if (!(now.unitSource == before.unitSource)) {
    if (!before.unitSource.IsEmpty()) --unitUsers_[before.unitSource];
    if (!now.unitSource.IsEmpty()) ++unitUsers_[now.unitSource];
  }
}

void CDDWorkerDB::MissingChanged(ZAFHartTypes::TextKey variable, bool missing) {
  if (dependencies_.IsEmpty()) return;
  dependencies_.VariableMissing(variable, missing);
  if (!missing || !trackDependencies_ || !sinks_.invalidated) return;
  dependencies_.ForEachWithDependency(variable, [this](ZAFHartTypes::TextKey name) {
    if (const Entry* entry = objects_.Find(name)) {
      sinks_.invalidated(entry->object->ObjectDefinition());
    }
  });
}

MarkedVariables CDDWorkerDB::WatchMarked(VariableMark mark) {
  MarkedVariables marked{{}, CountMarked(mark)};
  for (const auto& [name, entry] : objects_) {
    const Variable* variable = ViewOf<Variable>(entry);
    if (!variable || !Bears(*variable, mark)) continue;
    marked.variables.Add(variable->Definition());
    marked.count->Watch(name, true);
  }
  return marked;
}

std::shared_ptr<StateCounter> CDDWorkerDB::CountMarked(VariableMark mark,
                                                       const DefinitionList& definitions) {
  auto counter = std::make_shared<StateCounter>(mark);
  for (const Definition& definition : definitions) Watch(*counter, definition);
  counters_.push_back(counter);
  return counter;
}

void CDDWorkerDB::Watch(StateCounter& counter, const Definition& variable) const {
  const Variable* stored = Stored<Variable>(variable);
  counter.Watch(variable.Key(), stored && Bears(*stored, counter.Mark()));
}

void CDDWorkerDB::CountMark(VariableMark mark, ZAFHartTypes::TextKey variable, bool marked) {
  std::erase_if(counters_, [&](const std::weak_ptr<StateCounter>& weak) {
    const auto counter = weak.lock();
    if (counter && counter->Mark() == mark) counter->MarkChanged(variable, marked);
    return !counter;
  });
}

void CDDWorkerDB::SetVariableAvailable(const Definition& definition, bool available) {
  const bool all = definition.IsEmpty();
  ForOneOrAll<Variable>(definition, [&](Variable& stored) {
    Alter(stored, [&](Variable& variable) {
      MakeAvailable(variable, available || (all && IsDynAvailTime(variable)));
    });
  });
  if (all && !available) AdvanceGeneration();
}

void CDDWorkerDB::ApplyRefreshTimes(Variable& stored) {
  if (IsDynAvailTime(stored)) {
    FollowIntervalVariable(stored, dynAvailTime_, &Variable::SetDynAvailTime);
  } else if (IsStaticAvailTime(stored)) {
    FollowIntervalVariable(stored, staticAvailTime_, &Variable::SetStaticAvailTime);
  } else {
    stored.SetDynAvailTime(dynAvailTime_);
    stored.SetStaticAvailTime(staticAvailTime_);
  }
}

void CDDWorkerDB::FollowIntervalVariable(Variable& stored, std::int32_t& interval,
                                         void (Variable::*setInterval)(std::int32_t)) {
  const auto seconds = SecondsOf(stored.Value());
  if (seconds == interval) return;
  if (!stored.Available() || !seconds) {
    stored.SetValue(interval);
    return;
  }
  interval = *seconds;
  ForAll<Variable>([&](Variable& variable) { (variable.*setInterval)(interval); });
}

}  // namespace ZAFHartLib
