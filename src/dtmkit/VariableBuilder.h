#pragma once

#include <initializer_list>

#include "dtmkit/ItemBuilder.h"
#include "platform/Export.h"

namespace ZAFHartTypes::dtmkit {

// Lists that all variables of one type share.
using Enums = std::shared_ptr<const EnumList>;
using Bits = std::shared_ptr<const BitList>;

// Values or bit masks with their texts: MakeEnums({{0, "Off|de|Aus"}, {1, "On|de|Ein"}}).
inline Enums MakeEnums(std::initializer_list<EnumItem> items) {
  return std::make_shared<const EnumList>(items);
}
inline Bits MakeBits(std::initializer_list<BitItem> items) {
  return MakeEnums(items);
}

// Writes a DD variable. Without further words it is readable and writable, valid, and static.
class ZAF_API VariableBuilder : public ItemBuilder<VariableBuilder, Variable> {
 public:
  using ItemBuilder::ItemBuilder;

  // --- type; sizes are bytes on the wire, of texts the greatest number of characters ---
  VariableBuilder& Float() { return Typed(TypeCode::Float, 4); }
  VariableBuilder& Double() { return Typed(TypeCode::Double, 8); }
  VariableBuilder& Integer(std::int32_t size) { return Typed(TypeCode::Integer, size); }
  VariableBuilder& Unsigned(std::int32_t size) { return Typed(TypeCode::Unsigned, size); }
  VariableBuilder& Enumerated(std::int32_t size, Enums items);
  VariableBuilder& BitEnumerated(std::int32_t size, Bits items);
  // Index into an item array that has been described before (InvalidArgument otherwise).
  VariableBuilder& Index(std::int32_t size, std::string_view array);
  VariableBuilder& Ascii(std::int32_t length) { return Typed(TypeCode::Ascii, length); }
  VariableBuilder& PackedAscii(std::int32_t length) { return Typed(TypeCode::PackedAscii, length); }
  VariableBuilder& Password(std::int32_t length) { return Typed(TypeCode::Password, length); }
  VariableBuilder& BitString(std::int32_t length) { return Typed(TypeCode::BitString, length); }
  VariableBuilder& Date() { return Typed(TypeCode::Date, 3); }
  VariableBuilder& Time() { return Typed(TypeCode::Time, 6); }
  VariableBuilder& DateAndTime() { return Typed(TypeCode::DateAndTime, 7); }
  VariableBuilder& Duration() { return Typed(TypeCode::Duration, 6); }

  // One more MIN_VALUE/MAX_VALUE pair; an empty limit is none.
  VariableBuilder& Range(Variant minimum, Variant maximum);
  // C display format without "%": "6.2f".
  VariableBuilder& Format(std::string format);
  // Factor of the value for display.
  VariableBuilder& Scale(Variant factor);
  // Unit that never changes; others come from unit relations.
  VariableBuilder& Unit(SharedText text);
  // DEFAULT_VALUE, which is also what the variable holds until it is read.
  VariableBuilder& Default(const Variant& value);

  // --- handling, flags, actions ---
  VariableBuilder& ReadOnly();
  VariableBuilder& WriteOnly();
  // A live value: left out of uploads.
  VariableBuilder& Dynamic();
  // Held by the DTM: no command reads or writes it for its own sake.
  VariableBuilder& Local();
  VariableBuilder& Actions(ActionList list, std::initializer_list<std::string_view> methods);

  // --- conditions ---
  VariableBuilder& ValidWhen(Condition condition);
  // Otherwise it is read-only.
  VariableBuilder& WritableWhen(Condition condition);

 private:
  VariableBuilder& Typed(TypeCode code, std::int32_t size);
  VariableBuilder& Flagged(VariableFlag flag);
};

}  // namespace ZAFHartTypes::dtmkit
