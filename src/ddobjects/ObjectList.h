#pragma once

#include "ddobjects/DDObject.h"
#include "ddobjects/KeyedList.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

// Keyed list of objects, by the names of their definitions; the kinds do not count. It shares the
// objects. Iteration yields pairs of key and object in the order of adding.
class ZAF_API ObjectList {
 public:
  // False, and no change, when an object of that name is listed already. REQUIRES: an object.
  bool Add(std::shared_ptr<DDObject> object);
  bool Contains(const Definition& definition) const { return list_.Contains(definition.Key()); }
  // Nothing when absent.
  std::shared_ptr<DDObject> Find(const Definition& definition) const;
  // By position from 1; raises SubscriptOutOfRange.
  const std::shared_ptr<DDObject>& Item(std::size_t position) const { return list_.At(position); }
  // False when there is no object of that name.
  bool Remove(const Definition& definition) { return list_.Remove(definition.Key()); }
  std::size_t Count() const { return list_.Count(); }
  void Clear() { list_.Clear(); }
  auto begin() const { return list_.begin(); }
  auto end() const { return list_.end(); }

 private:
  KeyedList<std::shared_ptr<DDObject>> list_;
};

}  // namespace ZAFHartTypes
