#include "ddobjects/ItemArray.h"

#include <algorithm>

namespace ZAFHartTypes {

const ArrayElement* ItemArray::Find(std::int32_t index) const {
  const auto found =
      std::find_if(elements_.begin(), elements_.end(),
                   [index](const ArrayElement& element) { return element.index == index; });
  return found == elements_.end() ? nullptr : &*found;
}

void ItemArray::Assign(const DDObject& other) {
  if (&other == this) return;
  RequireSameKind(other);
  const auto& from = static_cast<const ItemArray&>(other);
  TakeStampsFrom(from);
  label_ = from.label_;
  elements_ = from.elements_;
}

std::string ItemArray::Describe(std::int16_t infoLevel) const {
  std::string text = Definition().Describe(infoLevel);
  if (infoLevel <= 1) return text;
  for (const ArrayElement& element : elements_) {
    text.append(" ")
        .append(std::to_string(element.index))
        .append("=")
        .append(element.definition.Name());
  }
  return text;
}

void ItemCollection::Assign(const DDObject& other) {
  if (&other == this) return;
  RequireSameKind(other);
  const auto& from = static_cast<const ItemCollection&>(other);
  TakeStampsFrom(from);
  label_ = from.label_;
  members_ = from.members_;
}

std::string ItemCollection::Describe(std::int16_t infoLevel) const {
  std::string text = Definition().Describe(infoLevel);
  if (infoLevel <= 1) return text;
  for (const CollectionMember& member : members_) {
    text.append(" ").append(member.name).append("=").append(member.definition.Name());
  }
  return text;
}

}  // namespace ZAFHartTypes
