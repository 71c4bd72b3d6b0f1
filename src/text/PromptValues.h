#pragma once

#include <map>
#include <string>
#include <string_view>

#include "types/TextKey.h"
#include "types/Variant.h"

namespace ZAFHartLib {

// Values that the references of a prompt are filled from. Keys compare without regard to letter
// case.
class PromptValues {
 public:
  // An earlier value of the key is replaced.
  void Set(std::string_view key, ZAFHartTypes::Variant value) {
    values_.insert_or_assign(ZAFHartTypes::FoldCase(key), std::move(value));
  }
  // nullptr when absent; good until the key is set again or the collection changes.
  const ZAFHartTypes::Variant* Find(std::string_view key) const {
    const auto found = values_.find(ZAFHartTypes::FoldCase(key));
    return found == values_.end() ? nullptr : &found->second;
  }
  bool IsEmpty() const { return values_.empty(); }

 private:
  std::map<std::string, ZAFHartTypes::Variant> values_;
};

}  // namespace ZAFHartLib
