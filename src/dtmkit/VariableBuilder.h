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
// A value is the mask of one or more bits: MakeBits({{0x01, "Sensor"}, {0x80, "Memory"}}).
inline Bits MakeBits(std::initializer_list<BitItem> items) {
  return MakeEnums(items);
}

// Writes a DD variable. It has one type; without further words it is readable and writable, valid,
// and static.
class ZAF_API VariableBuilder : public ItemBuilder<VariableBuilder, Variable> {
 public:
  using ItemBuilder::ItemBuilder;

  // --- type; sizes are bytes on the wire, of texts the greatest number of characters ---
  // Integers, enumerations and indexes take 1 to 4 bytes. See TypeCode for the forms on the wire.
  VariableBuilder& Float() { return Typed(TypeCode::Float, 4); }
  VariableBuilder& Double() { return Typed(TypeCode::Double, 8); }
  VariableBuilder& Integer(std::int32_t size) { return Typed(TypeCode::Integer, size); }
  VariableBuilder& Unsigned(std::int32_t size) { return Typed(TypeCode::Unsigned, size); }
  // The lists are shared and exhaustive: a value or bit that is not listed is refused. An empty one
  // allows all. REQUIRES: a list.
  VariableBuilder& Enumerated(std::int32_t size, Enums items);
  VariableBuilder& BitEnumerated(std::int32_t size, Bits items);
  // Index into an item array that has been described before (InvalidArgument otherwise).
  VariableBuilder& Index(std::int32_t size, std::string_view array);
  VariableBuilder& Ascii(std::int32_t length) { return Typed(TypeCode::Ascii, length); }
  VariableBuilder& PackedAscii(std::int32_t length) { return Typed(TypeCode::PackedAscii, length); }
  VariableBuilder& Password(std::int32_t length) { return Typed(TypeCode::Password, length); }
  VariableBuilder& BitString(std::int32_t length) { return Typed(TypeCode::BitString, length); }
  VariableBuilder& Date() { return Typed(TypeCode::Date, 3); }
  // Like BitString without a form on the wire: commands cannot carry these.
  VariableBuilder& Time() { return Typed(TypeCode::Time, 6); }
  VariableBuilder& DateAndTime() { return Typed(TypeCode::DateAndTime, 7); }
  VariableBuilder& Duration() { return Typed(TypeCode::Duration, 6); }

  // One more MIN_VALUE/MAX_VALUE pair of a number; an empty limit is none. A value need only lie in
  // one of the ranges, both ends included. Unscaled, like the value.
  VariableBuilder& Range(Variant minimum, Variant maximum);
  // C display format without "%": "6.2f".
  VariableBuilder& Format(std::string format);
  // Factor that the value is multiplied by for display.
  VariableBuilder& Scale(Variant factor);
  // Unit that never changes, multilingual; others come from unit relations.
  VariableBuilder& Unit(SharedText text);
  // DEFAULT_VALUE, which is also what the variable holds until it is read. It is not checked here:
  // RequireConsistent does.
  VariableBuilder& Default(const Variant& value);

  // --- handling, flags, actions ---
  // The later of the two counts.
  VariableBuilder& ReadOnly();
  VariableBuilder& WriteOnly();
  // A live value: left out of uploads.
  VariableBuilder& Dynamic();
  // Held by the DTM: no command reads or writes it for its own sake.
  VariableBuilder& Local();
  // Appends methods to one of the six lists; they run in this order.
  VariableBuilder& Actions(ActionList list, std::initializer_list<std::string_view> methods);

  // --- conditions ---
  // VALIDITY: a variable that is not valid is hidden and not read.
  VariableBuilder& ValidWhen(Condition condition);
  // Otherwise it is read-only; whether it is readable stays as described.
  VariableBuilder& WritableWhen(Condition condition);

 private:
  VariableBuilder& Typed(TypeCode code, std::int32_t size);
  VariableBuilder& Flagged(VariableFlag flag);
};

}  // namespace ZAFHartTypes::dtmkit
