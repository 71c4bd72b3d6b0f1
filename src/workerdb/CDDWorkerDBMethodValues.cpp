// Values that a method assigns: kept from before, so that they can be undone.

#include "types/Failure.h"
#include "workerdb/StoredObjects.h"

namespace ZAFHartLib {

std::shared_ptr<Variable> CDDWorkerDB::ReadForMethod(const Definition& definition) {
  auto variable = model_.Kernel()->ReadVariable(definition);
  if (!savedValues_.Contains(definition.Key())) {
    savedValues_.Add(definition.Key(), variable->Copy());
  }
  return variable;
}

void CDDWorkerDB::SaveValues() {
  SaveValues(SavedDefinitions());
}

void CDDWorkerDB::SaveValues(const DefinitionList& variables) {
  for (const Definition& definition : variables) {
    if (savedValues_.Remove(definition.Key())) Show(definition);
  }
}

void CDDWorkerDB::RestoreValues() {
  RestoreValues(SavedDefinitions());
}

void CDDWorkerDB::RestoreValues(const DefinitionList& variables) {
  for (const Definition& definition : variables) {
    const auto* saved = savedValues_.Find(definition.Key());
    if (!saved) continue;
    const auto kept = *saved;
    savedValues_.Remove(definition.Key());
    ZAFHartTypes::IgnoreFailures([&] { Restore(kept); });
  }
}

DefinitionList CDDWorkerDB::SavedDefinitions() const {
  DefinitionList definitions;
  for (const auto& [name, variable] : savedValues_) definitions.Add(variable->Definition());
  return definitions;
}

namespace {

// The device may have another value than the kept one: a value that differs and is not to be
// written came from the device or was sent to it, and one that is no longer available was given up.
bool IsOutdated(const Variable& kept, const Variable& stored) {
  if (stored.Attributes().IsLibraryHeld() || stored.ToBeWritten()) return false;
  return !stored.Available() || Differ(kept.Value(), stored.Value());
}

}  // namespace

// The value was not assigned by anybody, so that it is never sent to the device, and is as old as
// it was. Attributes are computed anew: what they depend on may have changed for good.
void CDDWorkerDB::Restore(const std::shared_ptr<Variable>& kept) {
  const Definition& definition = kept->Definition();
  Variable* stored = Stored<Variable>(definition);
  if (!stored || kept->HasSameState(*stored)) return;
  const bool available = kept->Available() && !IsOutdated(*kept, *stored);
  const bool toBeWritten = kept->ToBeWritten();
  const Variant value = kept->Value();
  WriteObject(kept);
  WriteValueLocally(definition, value);
  SetVariableAvailable(definition, available);
  SetVariableToBeWritten(definition, toBeWritten);
  stored->SetAvailableSince(kept->AvailableSince());
  if (trackDependencies_) MakeStale(*stored);
  Show(*stored);
}

}  // namespace ZAFHartLib
