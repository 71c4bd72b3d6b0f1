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
  // The definition of the item `name`; an empty name makes a definition that stands for "none".
  static Definition Define(std::string_view name, ObjectKind kind) {
    return Definition(TextKey::Of(name), kind);
  }
  // The same for a name that is interned already.
  Definition(TextKey key, ObjectKind kind) : key_(key), kind_(kind) {}

  // It stands for "none": it has no name, whatever its kind.
  bool IsEmpty() const { return key_.IsEmpty(); }
  explicit operator bool() const { return !IsEmpty(); }

  // DD identifier as written in the DD; "" for none. Good for the life of the process.
  const std::string& Name() const { return key_.Name(); }
  // As it was given: IsSameAs and all look-ups go by the name alone.
  ObjectKind Kind() const { return kind_; }
  // What keyed lists find the item by.
  TextKey Key() const { return key_; }

  // Itself: a definition does not change.
  Definition GetCopy() const { return *this; }
  // Both name the same item. Only names count, without regard to letter case.
  bool IsSameAs(const Definition& other) const { return key_ == other.key_; }
  // Text for trace lines: the name at level 0 and below, "VARIABLE upper_range_value" above,
  // "Nothing" for an empty one.
  std::string Describe(std::int16_t infoLevel) const;

 private:
  TextKey key_;
  ObjectKind kind_ = ObjectKind::Undefined;
};

// "VARIABLE", "COMMAND", … as trace lines name the kinds; "UNDEFINED" for any other number.
ZAF_API std::string_view KindWord(ObjectKind kind);

}  // namespace ZAFHartTypes
