#include "ddobjects/ObjectList.h"

namespace ZAFHartTypes {

bool ObjectList::Add(std::shared_ptr<DDObject> object) {
  const TextKey key = object->ObjectDefinition().Key();
  if (list_.Contains(key)) return false;
  list_.Add(key, std::move(object));
  return true;
}

std::shared_ptr<DDObject> ObjectList::Find(const Definition& definition) const {
  const auto* found = list_.Find(definition.Key());
  return found ? *found : nullptr;
}

}  // namespace ZAFHartTypes
