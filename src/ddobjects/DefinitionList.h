#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <vector>

#include "ddobjects/Definition.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

// Ordered list of definitions; positions count from 1. It may name an item more than once.
// Copies are independent.
class ZAF_API DefinitionList {
 public:
  DefinitionList() = default;
  DefinitionList(std::initializer_list<Definition> definitions) : definitions_(definitions) {}

  // Appends.
  void Add(const Definition& definition) { definitions_.push_back(definition); }
  // Position of the first definition of the item, 0 when absent. The kind does not count.
  std::size_t IndexOf(const Definition& definition) const;
  bool Contains(const Definition& definition) const { return IndexOf(definition) != 0; }
  // Both raise SubscriptOutOfRange for a position outside 1..Count().
  const Definition& Item(std::size_t position) const;
  void Remove(std::size_t position);
  void Clear() { definitions_.clear(); }

  std::size_t Count() const { return definitions_.size(); }
  bool IsEmpty() const { return definitions_.empty(); }
  auto begin() const { return definitions_.begin(); }
  auto end() const { return definitions_.end(); }

  DefinitionList Copy() const { return *this; }
  // Text for trace lines: "(name, name)", from level 2 on with the kinds.
  std::string Describe(std::int16_t infoLevel) const;

  // The same items in the same order.
  friend ZAF_API bool operator==(const DefinitionList& a, const DefinitionList& b);

 private:
  std::vector<Definition> definitions_;
};

// List of the items that a relation names.
using RelationItemList = DefinitionList;

}  // namespace ZAFHartTypes
