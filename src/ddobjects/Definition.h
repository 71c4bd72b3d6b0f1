#pragma once

#include <string>
#include <string_view>

#include "ddobjects/Codes.h"
#include "platform/Export.h"
#include "types/TextKey.h"

namespace ZAFHartTypes {

// Identity of a DD item: its name and kind. Immutable and as cheap to copy as two pointers. An
// empty one stands for "none". Objects refer to one another by Definition, never by address.
class ZAF_API Definition {
 public:
  Definition() = default;
  // The definition of the item `name`.
  static Definition Define(std::string_view name, ObjectKind kind) {
    return Definition(TextKey::Of(name), kind);
  }
  Definition(TextKey key, ObjectKind kind) : key_(key), kind_(kind) {}

  bool IsEmpty() const { return key_.IsEmpty(); }
  explicit operator bool() const { return !IsEmpty(); }

  // DD identifier as written in the DD.
  const std::string& Name() const { return key_.Name(); }
  ObjectKind Kind() const { return kind_; }
  TextKey Key() const { return key_; }

  Definition GetCopy() const { return *this; }
  // Both name the same item. Only names count, without regard to letter case.
  bool IsSameAs(const Definition& other) const { return key_ == other.key_; }
  // Text for trace lines: "VARIABLE upper_range_value".
  std::string Describe(std::int16_t infoLevel) const;

 private:
  TextKey key_;
  ObjectKind kind_ = ObjectKind::Undefined;
};

// "VARIABLE", "COMMAND", … as trace lines name the kinds.
ZAF_API std::string_view KindWord(ObjectKind kind);

}  // namespace ZAFHartTypes
