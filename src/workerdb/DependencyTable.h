#pragma once

#include <cstdint>
#include <functional>
#include <unordered_map>
#include <unordered_set>

#include "ddobjects/KeyedList.h"

namespace ZAFHartLib {

// Which variables the attributes of an object were computed from, both ways round. An object stands
// to a variable in one or both of these relations:
// - dependency: the object is stale while the variable is not available;
// - dependent: the object is stale once the variable is written.
class DependencyTable {
 public:
  using TextKey = ZAFHartTypes::TextKey;

  bool IsEmpty() const { return nodes_.IsEmpty(); }
  // `missing`: the variable is stored and not available at present.
  void AddDependency(TextKey object, TextKey variable, bool missing);
  void AddDependent(TextKey object, TextKey variable);
  bool IsDependent(TextKey object, TextKey variable) const;
  // The object stands to every variable as `source`, which was used to compute it, does.
  // `isMissing`(variable): as in AddDependency.
  void Inherit(TextKey object, TextKey source, const std::function<bool(TextKey)>& isMissing);
  // Forgets what the object was computed from, before it is computed anew.
  void Clear(TextKey object);

  // The variable lost or regained its availability, or was stored without it. Takes a constant time
  // per object that depends on it.
  void VariableMissing(TextKey variable, bool missing);
  // One of the object's dependencies is missing now. Constant time.
  bool HasMissing(TextKey object) const;
  // Drops the object's dependencies; it stays a dependent.
  void DropDependencies(TextKey object);

  // Both call visit(object) in no particular order; it must not change the table.
  template <typename Visit>
  void ForEachDependent(TextKey variable, Visit visit) const {
    ForEach(variable, kDependent, visit);
  }
  template <typename Visit>
  void ForEachWithDependency(TextKey variable, Visit visit) const {
    ForEach(variable, kDependency, visit);
  }

 private:
  enum Relation : std::uint8_t { kDependency = 1, kDependent = 2 };
  using Hash = ZAFHartTypes::TextKeyHash;
  struct Node {
    std::unordered_set<TextKey, Hash> variables;              // this object was computed from them
    std::unordered_map<TextKey, std::uint8_t, Hash> objects;  // computed from this variable
    std::int32_t missing = 0;  // dependencies of this object that are not available
  };

  // False when they stood in that relation before.
  bool Connect(TextKey object, TextKey variable, Relation relation);
  const Node* Find(TextKey key) const { return nodes_.Find(key); }

  template <typename Visit>
  void ForEach(TextKey variable, Relation relation, Visit& visit) const {
    const Node* node = Find(variable);
    if (!node) return;
    for (const auto& [object, relations] : node->objects) {
      if ((relations & relation) != 0) visit(object);
    }
  }

  Node& NodeOf(TextKey key);

  ZAFHartTypes::KeyedList<Node> nodes_;
};

}  // namespace ZAFHartLib
