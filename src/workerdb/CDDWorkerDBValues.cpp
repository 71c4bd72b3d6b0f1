// Values and contents that come in.

#include "types/Failure.h"
#include "workerdb/StoredObjects.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::AccessMode;

// A value that was not available counts as new, but a non-finite one stays what it is.
bool IsNewValue(const Variable& stored, const Variant& value) {
  if (stored.Value().IsNotFinite() && value.IsNotFinite()) return false;
  return !stored.Available() || Differ(stored.Value(), value);
}

// Refuses a refresh interval that is no number before it is stored.
void RequireSeconds(const Variable& stored, const Variant& value) {
  if (!IsDynAvailTime(stored) && !IsStaticAvailTime(stored)) return;
  if (SecondsOf(value)) return;
  throw ZAFHartTypes::Failure(ZAFHartTypes::ErrorNumber::TypeMismatch, "CDDStdWorkerDB.WriteValue",
                              "\"" + stored.Definition().Name() +
                                  "\" takes a number of seconds, 0 for no timed refresh, not \"" +
                                  value.Describe() + "\".");
}

// Judged on what the incoming variable carries.
bool IsChange(const Variable& incoming, const Variable& stored) {
  const auto carries = [&](Variable::Change change) { return (incoming.Changes() & change) != 0; };
  const bool isWritten =
      carries(Variable::kToBeWritten) && stored.ToBeWritten() && !incoming.ToBeWritten();
  return isWritten || (carries(Variable::kValue) && Differ(stored.Value(), incoming.Value()));
}

}  // namespace

void CDDWorkerDB::WriteValue(const Definition& definition, const Variant& value) {
  StoreValue(definition, value, DeviceWrite::Yes);
}

void CDDWorkerDB::WriteValueLocally(const Definition& definition, const Variant& value) {
  StoreValue(definition, value, DeviceWrite::No);
}

void CDDWorkerDB::StoreValue(const Definition& definition, const Variant& value,
                             DeviceWrite deviceWrite) {
  Variable* stored = Stored<Variable>(definition);  // good for ever: nothing is removed
  if (!stored) return;
  RequireSeconds(*stored, value);
  const bool changed = TakeValue(*stored, value);
  if (changed && deviceWrite == DeviceWrite::Yes && synchronousMode_ && stored->ToBeWritten()) {
    WriteToDevice(stored->Definition(), value);
  }
  InvalidateDependents(stored->Definition().Key());
  AdvanceGeneration();
  stored->SetChangeStamp(generation_);
  Show(*stored);
  Propagate(*stored);
  ApplyRefreshTimes(*stored);
}

// False when nothing changed.
bool CDDWorkerDB::TakeValue(Variable& stored, const Variant& value) {
  stored.SetIsChecked(true);
  if (!IsNewValue(stored, value)) return false;
  Alter(stored, [&](Variable& variable) {
    MakeAvailable(variable, true);
    MakePending(variable, !IsDynAvailTime(variable));
    variable.SetValue(value);
  });
  return true;
}

void CDDWorkerDB::WriteToDevice(const Definition& definition, const Variant& value) {
  if (model_.Comm()->Emulate()) {
    isSynchronized_ = false;
  } else {
    model_.Kernel()->WriteVariable(definition, value);
  }
}

void CDDWorkerDB::WriteObject(const std::shared_ptr<DDObject>& object) {
  StoreObject(object, Propagation::Yes);
}

void CDDWorkerDB::WriteObjectWithoutPropagation(const std::shared_ptr<DDObject>& object) {
  StoreObject(object, Propagation::No);
}

void CDDWorkerDB::StoreObject(const std::shared_ptr<DDObject>& object, Propagation propagation) {
  const Entry* entry = object ? objects_.Find(object->ObjectDefinition().Key()) : nullptr;
  if (!entry) return;
  Variable* stored = entry->variable;
  auto* incoming = dynamic_cast<Variable*>(object.get());
  if (!stored || !incoming) {
    if (object->AttributesAvailable()) object->SetSyncStamp(generation_);  // else it stays stale
    if (object != entry->object) entry->object->Assign(*object);           // refuses another kind
    return;
  }
  StoreVariable(*incoming, *stored);
  if (propagation == Propagation::Yes) Propagate(*stored);
  ApplyRefreshTimes(*stored);
  if (!IsDynAvailTime(*stored)) return;
  Alter(*stored, [this](Variable& variable) {
    MakeAvailable(variable, true);
    MakePending(variable, false);
  });
  Show(*stored);
}

void CDDWorkerDB::StoreVariable(Variable& incoming, Variable& stored) {
  const bool becomesAvailable =
      (incoming.Changes() & Variable::kAvailable) != 0 && incoming.Available();
  CompleteIncoming(incoming);
  if (IsChange(incoming, stored)) {
    InvalidateDependents(stored.Definition().Key());
    AdvanceGeneration();
    incoming.SetChangeStamp(generation_);
  } else if (incoming.ChangeStamp() < stored.ChangeStamp() ||
             incoming.ChangeStamp() > generation_) {
    incoming.SetChangeStamp(stored.ChangeStamp());
  }
  incoming.SetSyncStamp(generation_);
  Alter(stored, [&](Variable& variable) { AssignChanges(incoming, variable); });
  if (becomesAvailable) MakeAvailable(stored, true);
  incoming.ForgetChanges();
}

// Library-held variables need no read; the others follow the refresh intervals.
void CDDWorkerDB::CompleteIncoming(Variable& incoming) const {
  const bool libraryHeld = incoming.Attributes().IsLibraryHeld();
  if (!libraryHeld && incoming.CheckHandling(AccessMode::Read)) {
    incoming.SetDynAvailTime(dynAvailTime_);
    incoming.SetStaticAvailTime(staticAvailTime_);
  } else if (libraryHeld || IsDynAvailTime(incoming)) {
    incoming.SetAvailable(true);
  }
}

// Attributes are current only if they came along: others may have made the stored ones stale.
void CDDWorkerDB::AssignChanges(Variable& incoming, Variable& stored) {
  const bool current = (incoming.Changes() & Variable::kAttributes) != 0
                           ? incoming.AttributesAvailable()
                           : stored.AttributesAvailable();
  stored.Assign(incoming);
  stored.SetAttributesAvailable(current);
  if (const Variant* loaded = defaults_.Find(stored.Definition().Key())) {
    stored.SetDefaultValue(*loaded);
  }
}

// The other data set takes over value and flags; its attributes are its own.
void CDDWorkerDB::Propagate(const Variable& stored) {
  const auto manager = singleStorage_;
  if (!manager || !manager->IsSingleStorageObject(stored.Definition())) return;
  const auto copy = stored.Copy();
  copy->ForgetChanges();
  copy->CopyFrom(stored);
  manager->Update(storageMode_, copy);
}

}  // namespace ZAFHartLib
