// Flags of single objects or of all of a kind.

#include "workerdb/StoredObjects.h"

namespace ZAFHartLib {

using ZAFHartTypes::Command;
using ZAFHartTypes::RefreshRelation;
using ZAFHartTypes::UnitRelation;

void CDDWorkerDB::SetVariableError(const Definition& definition, std::int32_t index,
                                   const std::string& text) {
  const ZAFHartTypes::SharedText shared(text);
  ForOneOrAll<Variable>(definition, [&](Variable& stored) {
    stored.SetErrorText(shared);
    stored.SetErrorIndex(index);
  });
}

void CDDWorkerDB::SetVariableIsChecked(const Definition& definition, bool checked) {
  ForOneOrAll<Variable>(definition, [&](Variable& stored) { stored.SetIsChecked(checked); });
}

void CDDWorkerDB::SetVariableToBeWritten(const Definition& definition, bool pending) {
  ForOneOrAll<Variable>(definition, [&](Variable& stored) {
    Alter(stored, [&](Variable& variable) { MakePending(variable, pending); });
  });
}

void CDDWorkerDB::SetVariableInRecursion(const Definition& definition, bool running) {
  ForOneOrAll<Variable>(definition, [&](Variable& stored) { stored.SetInRecursion(running); });
}

void CDDWorkerDB::SetVariableInReadRecursion(const Definition& definition, bool running) {
  ForOneOrAll<Variable>(definition, [&](Variable& stored) { stored.SetInReadRecursion(running); });
}

void CDDWorkerDB::SetCommandInRecursion(const Definition& definition, bool running) {
  ForOneOrAll<Command>(definition, [&](Command& stored) { stored.SetInRecursion(running); });
}

// Relations are looked up only: an empty definition names none of them.
void CDDWorkerDB::SetRefreshInRecursion(const Definition& definition, bool running) {
  if (auto* relation = Stored<RefreshRelation>(definition)) relation->SetInRecursion(running);
}

void CDDWorkerDB::SetUnitInRecursion(const Definition& definition, bool running) {
  if (auto* relation = Stored<UnitRelation>(definition)) relation->SetInRecursion(running);
}

bool CDDWorkerDB::IsVariableInRecursion(const Definition& definition) const {
  const auto* stored = Stored<Variable>(definition);
  return stored && stored->InRecursion();
}

bool CDDWorkerDB::IsVariableInReadRecursion(const Definition& definition) const {
  const auto* stored = Stored<Variable>(definition);
  return stored && stored->InReadRecursion();
}

bool CDDWorkerDB::IsCommandInRecursion(const Definition& definition) const {
  const auto* stored = Stored<Command>(definition);
  return stored && stored->InRecursion();
}

bool CDDWorkerDB::IsRefreshInRecursion(const Definition& definition) const {
  const auto* stored = Stored<RefreshRelation>(definition);
  return stored && stored->InRecursion();
}

bool CDDWorkerDB::IsUnitInRecursion(const Definition& definition) const {
  const auto* stored = Stored<UnitRelation>(definition);
  return stored && stored->InRecursion();
}

void CDDWorkerDB::ResetInRecursionFlags() {
  SetVariableInRecursion({}, false);
  SetVariableInReadRecursion({}, false);
  SetCommandInRecursion({}, false);
}

}  // namespace ZAFHartLib
