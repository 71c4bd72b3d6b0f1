#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <vector>

#include "ddobjects/Definition.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

// Ordered list of definitions; positions count from 1.
class ZAF_API DefinitionList {
 public:
  DefinitionList() = default;
  DefinitionList(std::initializer_list<Definition> definitions) : definitions_(definitions) {}

  void Add(const Definition& definition) { definitions_.push_back(definition); }
  // Position of the item, 0 when absent.
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
  std::string Describe(std::int16_t infoLevel) const;

  friend ZAF_API bool operator==(const DefinitionList& a, const DefinitionList& b);

 private:
  std::vector<Definition> definitions_;
};

// List of the items that a relation names.
using RelationItemList = DefinitionList;

}  // namespace ZAFHartTypes
