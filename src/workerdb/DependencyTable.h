#pragma once

#include <cstdint>
#include <functional>
#include <unordered_map>

#include "types/TextKey.h"

namespace ZAFHartLib {

// Which variables the attributes of an object were computed from, both ways round. An edge leads
// from an object to a variable and is of one or both sorts:
// - dependency: the object is stale while the variable is not available;
// - dependent: the object is stale once the variable is written.
class DependencyTable {
 public:
  using TextKey = ZAFHartTypes::TextKey;
  using Visit = std::function<void(TextKey object)>;

  bool IsEmpty() const { return nodes_.empty(); }
  // `missing`: the variable is stored and not available at present.
  void AddDependency(TextKey object, TextKey variable, bool missing);
  void AddDependent(TextKey object, TextKey variable);
  bool IsDependent(TextKey object, TextKey variable) const;
  // Forgets what the object was computed from, before it is computed anew.
  void Clear(TextKey object);

  // The variable lost or regained its availability. Constant time per object that depends on it.
  void VariableMissing(TextKey variable, bool missing);
  // One of the object's dependencies is missing now.
  bool HasMissing(TextKey object) const;
  // Drops the object's dependencies; it stays a dependent.
  void DropDependencies(TextKey object);

  void ForEachDependent(TextKey variable, const Visit& visit) const;
  // The objects that depend on the variable's availability.
  void ForEachReader(TextKey variable, const Visit& visit) const;

 private:
  enum Sort : std::uint8_t { kDependency = 1, kDependent = 2 };
  using Edges = std::unordered_map<TextKey, std::uint8_t, ZAFHartTypes::TextKeyHash>;
  struct Node {
    Edges variables;           // this object was computed from them
    Edges objects;             // they were computed from this variable
    std::int32_t missing = 0;  // dependencies of this object that are not available
  };

  void Connect(TextKey object, TextKey variable, Sort sort);
  void ForEach(TextKey variable, Sort sort, const Visit& visit) const;
  const Node* Find(TextKey key) const;

  std::unordered_map<TextKey, Node, ZAFHartTypes::TextKeyHash> nodes_;
};

}  // namespace ZAFHartLib
