#include "workerdb/DependencyTable.h"

#include <vector>

namespace ZAFHartLib {

bool DependencyTable::Connect(TextKey object, TextKey variable, Relation relation) {
  std::uint8_t& relations = NodeOf(variable).objects[object];
  if ((relations & relation) != 0) return false;
  relations = static_cast<std::uint8_t>(relations | relation);
  NodeOf(object).variables.insert(variable);
  return true;
}

DependencyTable::Node& DependencyTable::NodeOf(TextKey key) {
  if (!nodes_.Contains(key)) nodes_.Add(key, {});
  return *nodes_.Find(key);
}

void DependencyTable::AddDependency(TextKey object, TextKey variable, bool missing) {
  if (Connect(object, variable, kDependency) && missing) ++NodeOf(object).missing;
}

void DependencyTable::AddDependent(TextKey object, TextKey variable) {
  Connect(object, variable, kDependent);
}

void DependencyTable::Inherit(TextKey object, TextKey source,
                              const std::function<bool(TextKey)>& isMissing) {
  const Node* node = Find(source);
  if (!node || object == source) return;
  const std::vector<TextKey> variables(node->variables.begin(), node->variables.end());
  for (const TextKey variable : variables) {
    const std::uint8_t relations = NodeOf(variable).objects[source];
    // An object whose own value is missing is computed all the same.
    const bool awaits = (relations & kDependency) != 0 && variable != object;
    if (awaits) AddDependency(object, variable, isMissing(variable));
    if ((relations & kDependent) != 0) AddDependent(object, variable);
  }
}

bool DependencyTable::IsDependent(TextKey object, TextKey variable) const {
  const Node* node = Find(variable);
  return node && node->objects.contains(object);
}

void DependencyTable::Clear(TextKey object) {
  Node* node = nodes_.Find(object);
  if (!node) return;
  for (const TextKey variable : node->variables) nodes_.Find(variable)->objects.erase(object);
  node->variables.clear();
  node->missing = 0;
}

void DependencyTable::VariableMissing(TextKey variable, bool missing) {
  ForEachWithDependency(variable,
                        [&](TextKey object) { nodes_.Find(object)->missing += missing ? 1 : -1; });
}

bool DependencyTable::HasMissing(TextKey object) const {
  const Node* node = Find(object);
  return node && node->missing > 0;
}

void DependencyTable::DropDependencies(TextKey object) {
  Node* node = nodes_.Find(object);
  if (!node) return;
  std::erase_if(node->variables, [&](TextKey variable) {
    auto& objects = nodes_.Find(variable)->objects;
    std::uint8_t& relations = objects[object];
    relations = static_cast<std::uint8_t>(relations & ~kDependency);
    if (relations != 0) return false;
    objects.erase(object);
    return true;
  });
  node->missing = 0;
}

}  // namespace ZAFHartLib
