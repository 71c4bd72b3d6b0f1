// What refresh and unit relations do to the variables they name.

#include "text/DisplayString.h"
#include "types/Failure.h"
#include "workerdb/StoredObjects.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::TypeCode;

// The unit variable's value as the unit text of its dependents.
std::string UnitTextOf(const Variable& unit) {
  const TypeCode type = unit.TypeInfo().TypeCode();
  const bool isText =
      type == TypeCode::Ascii || type == TypeCode::PackedAscii || type == TypeCode::Password;
  return isText ? unit.Value().ToText() : GetVariableDisplayString(unit);
}

// A variable does not wait for itself.
void AddWriteDependency(Variable& stored, const Definition& variable) {
  if (stored.Definition().IsSameAs(variable)) return;
  if (!stored.WriteDependencies().Contains(variable)) stored.EditWriteDependencies().Add(variable);
}

void RemoveWriteDependency(Variable& stored, const Definition& variable) {
  const std::size_t position = stored.WriteDependencies().IndexOf(variable);
  if (position != 0) stored.EditWriteDependencies().Remove(position);
}

}  // namespace

// Unknown names pass: there is nothing to do for them.
void CDDWorkerDB::RequireVariables(const Definition& right, const Definition& left,
                                   const char* source) const {
  for (const Definition* definition : {&right, &left}) {
    const Entry* entry = objects_.Find(definition->Key());
    if (definition->Kind() == ObjectKind::Variable && (!entry || entry->variable)) continue;
    throw ZAFHartTypes::Failure(ZAFHartTypes::ErrorNumber::InvalidArgument, source,
                                ZAFHartTypes::kWrongKind);
  }
}

void CDDWorkerDB::SetRefresh(const Definition& right, const Definition& left) {
  RequireVariables(right, left, "CDDStdWorkerDB.SetRefresh");
  Variable* refreshed = Stored<Variable>(right);
  const Variable* changed = Stored<Variable>(left);
  if (!refreshed || !changed || !changed->Available()) return;
  if (changed->ChangeStamp() <= refreshed->SyncStamp()) return;
  if (refreshed->Available()) LoseRefreshedValue(*refreshed);
  refreshed->SetSyncStamp(generation_);
  AddWriteDependency(*refreshed, left);
}

void CDDWorkerDB::LoseRefreshedValue(Variable& stored) {
  const ZAFHartTypes::TextKey name = stored.Definition().Key();
  Alter(stored, [](Variable& variable) { variable.SetAvailable(false); });
  if (trackDependencies_) {
    dependencies_.ForEachDependent(name, [this](ZAFHartTypes::TextKey dependent) {
      if (const Entry* entry = objects_.Find(dependent)) MakeStale(*entry->object);
    });
  }
  const auto users = unitUsers_.find(name);
  if (users == unitUsers_.end() || users->second == 0) return;
  DefinitionList withUnit;
  ForAll<Variable>([&](const Variable& variable) {
    if (variable.Available() && variable.UnitSource().Key() == name) {
      withUnit.Add(variable.Definition());
    }
  });
  for (const Definition& definition : withUnit) {
    SetVariableAvailable(definition, false);
    Show(definition);
  }
}

void CDDWorkerDB::SetUnit(const Definition& right, const Definition& left) {
  RequireVariables(right, left, "CDDStdWorkerDB.SetUnit");
  if (!Stored<Variable>(right) || !Stored<Variable>(left) || right.IsSameAs(left)) return;
  WithKnownType(right);
  const auto unit = WithKnownType(left);
  Variable& receiving = *Stored<Variable>(right);
  const std::string unitText = UnitTextOf(*unit);
  if (!receiving.UnitSource().IsSameAs(left)) {
    TakeUnitSource(receiving, left, unitText);
    return;
  }
  if (!RecalculateForUnit(receiving, *unit, unitText)) return;
  AddWriteDependency(receiving, left);
  receiving.SetUnitText(unitText);
  model_.Kernel()->GetVariable(right);
}

std::shared_ptr<Variable> CDDWorkerDB::WithKnownType(const Definition& definition) {
  const Variable* stored = Stored<Variable>(definition);
  if (stored->TypeInfo().TypeCode() != TypeCode::NotComputed) return stored->Snapshot();
  return model_.Kernel()->GetVariable(definition);
}

// The variable is written together with the unit variable that gives it its unit now.
void CDDWorkerDB::TakeUnitSource(Variable& receiving, const Definition& unit,
                                 const std::string& unitText) {
  RemoveWriteDependency(receiving, receiving.UnitSource());
  AddWriteDependency(receiving, unit);
  Alter(receiving, [&](Variable& variable) { variable.SetUnitSource(unit); });
  receiving.SetUnitText(unitText);
  Show(receiving);
}

// False when the unit has not changed, so that nothing is left to do.
bool CDDWorkerDB::RecalculateForUnit(Variable& receiving, const Variable& unit,
                                     const std::string& unitText) {
  if (!unit.Available() || receiving.ToBeWritten()) return true;
  if (receiving.UnitText() == unitText) return false;
  const Variant before = receiving.Value();
  const Variant after = disableUnitRecalculation_ ? before : Converted(receiving, unitText);
  Alter(receiving, [&](Variable& variable) {
    variable.SetAvailable(false);
    variable.SetValue(after);
  });
  if (Differ(before, after)) {
    InvalidateDependents(receiving.Definition().Key());
    AdvanceGeneration();
  }
  return true;
}

// A value that is no number stays as it is.
Variant CDDWorkerDB::Converted(const Variable& variable, const std::string& newUnitText) const {
  if (!variable.Value().IsNumber()) return variable.Value();
  if (!units_.IsEmpty()) return ConvertUnit(variable, newUnitText);
  const auto copy = variable.Copy();
  copy->ConvertToUnit(newUnitText);
  return copy->Value().ToDouble();
}

}  // namespace ZAFHartLib
