// Objects and their keys.

#include <algorithm>

#include "types/Failure.h"
#include "workerdb/StoredObjects.h"

namespace ZAFHartLib {

using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Failure;

std::shared_ptr<DDObject> CDDWorkerDB::ReadObject(const Definition& definition) {
  SendLifeSignal();
  const Entry* entry = objects_.Find(definition.Key());
  if (!entry) return nullptr;
  DDObject& stored = *entry->object;
  if (entry->variable && HasExpired(*entry->variable)) {
    Alter(*entry->variable, [](Variable& variable) { variable.SetAvailable(false); });
  }
  UpdateStaleness(stored, definition);
  if (sinks_.read) sinks_.read(stored.ObjectDefinition());
  if (!entry->variable && stored.AttributesAvailable()) return entry->object;
  return stored.ComputeAttributes();
}

void CDDWorkerDB::SendLifeSignal() {
  constexpr std::int32_t kReadsBetweenSignals = 25;
  if (++lifeCounter_ <= kReadsBetweenSignals) return;
  lifeCounter_ = 0;
  ZAFHartTypes::IgnoreFailures([&] {
    const auto components = model_.Get();
    const auto gui = components ? components->DDGUI() : nullptr;
    if (gui) gui->LifeSignal(ZAFHartTypes::LifeSignalCode::DatabaseRead, {});
  });
}

void CDDWorkerDB::AddObject(const std::shared_ptr<DDObject>& object) {
  auto* variable = dynamic_cast<Variable*>(object.get());
  if (!object || (variable != nullptr) != (object->Kind() == ObjectKind::Variable)) {
    throw Failure(ErrorNumber::InvalidArgument, "CDDStdWorkerDB.AddObject",
                  object ? object->ObjectDefinition().Name() + ": " + ZAFHartTypes::kWrongKind
                         : "There is no object to add.");
  }
  const Definition& definition = object->ObjectDefinition();
  if (objects_.Contains(definition.Key())) return;
  objects_.Add(definition.Key(), Entry{object, variable});
  if (const auto list = listsOfKind_.find(definition.Kind()); list != listsOfKind_.end()) {
    list->second.Add(definition.Key(), definition);
  }
  if (!variable) return;
  variable->FreezeAttributes();
  ApplyDefault(*variable);
  AfterChange(*variable, Marks());
  ApplyRefreshTimes(*variable);
}

ZAFHartTypes::ValueList CDDWorkerDB::ReadValues(const ZAFHartTypes::DataItemList& items) {
  ZAFHartTypes::ValueList values;
  values.reserve(items.Count());
  for (const auto& item : items) {
    if (!item.IsVariable()) {
      values.push_back(item.ConstantValue());
    } else {
      const Variable* stored = Stored<Variable>(item.VariableDefinition());
      values.push_back(stored ? stored->Value() : Variant());
    }
  }
  return values;
}

void CDDWorkerDB::WriteValues(const ZAFHartTypes::DataItemList& items,
                              const ZAFHartTypes::ValueList& values) {
  for (std::size_t position = 1; position <= items.Count(); ++position) {
    const auto& item = items.Item(position);
    if (!item.IsVariable()) continue;
    if (position > values.size()) {
      throw Failure(ErrorNumber::SubscriptOutOfRange, "CDDStdWorkerDB.WriteValues",
                    "There are " + std::to_string(values.size()) + " values, but item " +
                        std::to_string(position) + ", \"" + item.VariableDefinition().Name() +
                        "\", needs one.");
    }
    WriteValue(item.VariableDefinition(), values[position - 1]);
  }
}

std::int32_t CDDWorkerDB::Count() const {
  return static_cast<std::int32_t>(objects_.Count());
}

std::shared_ptr<DDObject> CDDWorkerDB::Object(std::int32_t position) const {
  return CopyOf(objects_.At(static_cast<std::size_t>(std::max(position, 0))));
}

std::shared_ptr<DDObject> CDDWorkerDB::Object(const std::string& name) const {
  return CopyOf(objects_.At(ZAFHartTypes::TextKey::Of(name)));
}

std::shared_ptr<DDObject> CDDWorkerDB::CopyOf(const Entry& entry) const {
  if (!entry.variable) return entry.object->GetCopy();
  auto copy = entry.variable->Copy();
  if (HasExpired(*entry.variable)) copy->SetAvailable(false);
  return copy;
}

std::int32_t CDDWorkerDB::FindNextObject(std::int32_t start, std::optional<ObjectKind> kind) const {
  for (std::int32_t position = std::max(start, 1); position <= Count(); ++position) {
    const auto& object = objects_.At(static_cast<std::size_t>(position)).object;
    if (!kind || object->Kind() == *kind) return position;
  }
  return -1;
}

std::vector<std::shared_ptr<DDObject>> CDDWorkerDB::NewEnum() const {
  std::vector<std::shared_ptr<DDObject>> all;
  all.reserve(objects_.Count());
  for (const auto& [name, entry] : objects_) all.push_back(entry.object);
  return all;
}

const DefinitionsByName& CDDWorkerDB::ListOfKind(ObjectKind kind) const {
  const auto [list, isNew] = listsOfKind_.try_emplace(kind);
  if (isNew) {
    for (const auto& [name, entry] : objects_) {
      if (entry.object->Kind() == kind) list->second.Add(name, entry.object->ObjectDefinition());
    }
  }
  return list->second;
}

DefinitionsByName CDDWorkerDB::SingleStorageVariables() const {
  DefinitionsByName found;
  for (const auto& [name, definition] : ListOfKind(ObjectKind::Variable)) {
    if (definition.Name().find("ZAFsingleStorage_") != std::string::npos) {
      found.Add(name, definition);
    }
  }
  return found;
}

}  // namespace ZAFHartLib
