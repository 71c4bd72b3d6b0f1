#include "dtmkit/Context.h"

#include "types/TextKey.h"

namespace ZAFHartTypes::dtmkit {

Definition Context::Element(const Definition& array, std::int32_t index) const {
  const auto object = kernel_.GetArray(array);
  const ArrayElement* element = object->Find(index);
  return element ? element->definition : Definition();
}

Definition Context::Member(const Definition& collection, std::string_view name) const {
  const auto object = kernel_.GetCollection(collection);
  for (const CollectionMember& member : object->Members()) {
    if (SameKey(member.name, name)) return member.definition;
  }
  return {};
}

}  // namespace ZAFHartTypes::dtmkit
