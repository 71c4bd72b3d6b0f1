// When computed attributes are stale: by the generation, or by what they were computed from.

#include "workerdb/StoredObjects.h"

namespace ZAFHartLib {

using ZAFHartTypes::TextKey;

bool CDDWorkerDB::IsStaticAttributeObject(const Definition& definition) const {
  return !staticAttributeNames_.empty() && staticAttributeNames_.contains(definition.Key());
}

void CDDWorkerDB::UpdateStaleness(DDObject& stored, const Definition& definition) {
  if (!trackDependencies_) {
    if (IsStaticAttributeObject(definition)) return;
    stored.SetAttributesAvailable(stored.SyncStamp() == generation_);
  } else if (dependencies_.HasMissing(definition.Key())) {
    MakeStale(stored);
    dependencies_.DropDependencies(definition.Key());
  }
}

void CDDWorkerDB::MakeStale(DDObject& stored) {
  stored.SetAttributesAvailable(false);
  if (sinks_.invalidated) sinks_.invalidated(stored.ObjectDefinition());
}

void CDDWorkerDB::SetTrackDependencies(bool track) {
  trackDependencies_ = track;
  if (!track) return;
  for (auto& [name, entry] : objects_) MakeStale(*entry.object);
}

void CDDWorkerDB::AddDependency(const Definition& object, const Definition& variable) {
  const Variable* stored = Stored<Variable>(variable);
  dependencies_.AddDependency(object.Key(), variable.Key(), stored && !stored->Available());
}

void CDDWorkerDB::AddDependent(const Definition& object, const Definition& variable) {
  dependencies_.AddDependent(object.Key(), variable.Key());
}

void CDDWorkerDB::InheritDependencies(const Definition& object, const Definition& source) {
  dependencies_.Inherit(object.Key(), source.Key(), [this](TextKey variable) {
    const Entry* entry = objects_.Find(variable);
    return entry && entry->variable && !entry->variable->Available();
  });
}

bool CDDWorkerDB::IsDependent(const Definition& object, const Definition& variable) const {
  return dependencies_.IsDependent(object.Key(), variable.Key());
}

bool CDDWorkerDB::HasMissingDependency(const Definition& object) const {
  return dependencies_.HasMissing(object.Key());
}

void CDDWorkerDB::InvalidateDependents(TextKey variable) {
  if (!trackDependencies_ || dependencies_.IsEmpty()) return;
  NameSet visited;
  InvalidateDependents(variable, visited);
}

// Through arrays and collections it goes on to what was computed from them.
void CDDWorkerDB::InvalidateDependents(TextKey variable, NameSet& visited) {
  dependencies_.ForEachDependent(variable, [&](TextKey name) {
    const Entry* entry = objects_.Find(name);
    if (!entry) return;
    const ObjectKind kind = entry->object->Kind();
    const bool goesOn = kind == ObjectKind::ItemArray || kind == ObjectKind::Collection;
    if (goesOn && !visited.insert(name).second) return;
    MakeStale(*entry->object);
    if (goesOn) InvalidateDependents(name, visited);
  });
}

}  // namespace ZAFHartLib
