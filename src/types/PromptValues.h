#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/Export.h"
#include "types/TextKey.h"
#include "types/Variant.h"

namespace ZAFHartTypes {

// Values that the references of a prompt are filled from. Keys compare without regard to letter
// case.
class ZAF_API PromptValues {
 public:
  // An earlier value of the key is replaced.
  void Set(std::string_view key, Variant value) {
    values_.insert_or_assign(FoldCase(key), std::move(value));
  }
  // nullptr when absent; good until the key is set again or the collection changes.
  const Variant* Find(std::string_view key) const {
    const auto found = values_.find(FoldCase(key));
    return found == values_.end() ? nullptr : &found->second;
  }
  // Without effect for an unknown key.
  void Remove(std::string_view key) { values_.erase(FoldCase(key)); }
  bool IsEmpty() const { return values_.empty(); }

 private:
  std::map<std::string, Variant> values_;
};

}  // namespace ZAFHartTypes
