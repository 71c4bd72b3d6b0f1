#include <algorithm>
#include <cmath>

#include "ddobjects/ItemArray.h"
#include "ddobjects/Variable.h"
#include "types/Failure.h"
#include "types/Utf8.h"

// Which values a variable accepts, and what it shows when it has none.
namespace ZAFHartTypes {
namespace {

// Unsigned values above 2147483647 are held as negative 32-bit integers.
double NumberOf(const Variant& value, TypeCode code) {
  const double number = value.ToDouble();
  constexpr double kTwoTo32 = 4294967296.0;
  return code == TypeCode::Unsigned && number < 0 && value.Type() == VariantType::Int32
             ? number + kTwoTo32
             : number;
}

bool InRange(double number, const TypeInfo& type, std::int32_t range) {
  const Variant& minimum = type.MinValue(range);
  const Variant& maximum = type.MaxValue(range);
  return (minimum.IsEmpty() || number >= NumberOf(minimum, type.TypeCode())) &&
         (maximum.IsEmpty() || number <= NumberOf(maximum, type.TypeCode()));
}

bool IsLimited(const TypeInfo& type, std::int32_t range) {
  return !type.MinValue(range).IsEmpty() || !type.MaxValue(range).IsEmpty();
}

bool InSomeRange(double number, const TypeInfo& type) {
  bool limited = false;
  for (std::int32_t range = 1; range <= type.RangeCount(); ++range) {
    if (!IsLimited(type, range)) continue;
    limited = true;
    if (InRange(number, type, range)) return true;
  }
  return !limited;
}

// The integer fits the bytes that the type takes on the wire.
bool FitsSize(double number, const TypeInfo& type) {
  const int bits = 8 * std::clamp(type.Size(), 1, 4);
  if (type.TypeCode() == TypeCode::Integer) {
    return number >= -std::ldexp(1.0, bits - 1) && number < std::ldexp(1.0, bits - 1);
  }
  return number >= 0 && number < std::ldexp(1.0, bits);
}

bool CheckFloating(const Variant& value, const TypeInfo& type, bool strict) {
  const double number =
      type.TypeCode() == TypeCode::Float ? static_cast<double>(value.ToSingle()) : value.ToDouble();
  return !strict || (std::isfinite(number) && InSomeRange(number, type));
}

std::uint32_t AllBits(const BitList& bits) {
  std::uint32_t all = 0;
  for (const BitItem& bit : bits) all |= static_cast<std::uint32_t>(bit.Value());
  return all;
}

// One of the listed values or bits; a list that is not there allows everything.
bool IsListed(const Variant& value, double number, const TypeInfo& type) {
  switch (type.TypeCode()) {
    case TypeCode::Enumerated:
      return type.EnumItems().IsEmpty() || type.EnumItems().Find(value.ToLong()) != nullptr;
    case TypeCode::BitEnumerated:
      return type.BitItems().IsEmpty() || (value.ToBits32() & ~AllBits(type.BitItems())) == 0;
    case TypeCode::Index:
      return !type.IndexedArray() || type.IndexedArray()->Find(value.ToLong()) != nullptr;
    default:
      return InSomeRange(number, type);
  }
}

bool CheckIntegral(const Variant& value, const TypeInfo& type, bool strict) {
  const TypeCode wireCode =
      type.TypeCode() == TypeCode::Integer ? TypeCode::Integer : TypeCode::Unsigned;
  const double number = NumberOf(value, wireCode);
  if (!std::isfinite(number) || number != std::floor(number)) return false;
  // A type without a size (an internal variable, say) takes what a 32-bit integer holds.
  if (type.Size() > 0 ? !FitsSize(number, type) : number < -2147483648.0 || number > 4294967295.0)
    return false;
  return !strict || IsListed(value, number, type);
}

bool CheckText(const Variant& value, const TypeInfo& type) {
  if (!value.IsText() && !value.IsNumber() && !value.IsEmpty()) return false;
  const std::string text = value.ToText();
  if (type.Size() > 0 && utf8::Length(text) > static_cast<std::size_t>(type.Size())) return false;
  if (type.TypeCode() != TypeCode::PackedAscii) return true;
  // Packed ASCII holds the characters from blank to "_"; small letters are sent as capitals.
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return (c >= ' ' && c <= '_') || (c >= 'a' && c <= 'z'); });
}

// Day, month and year - 1900 in the three low bytes.
bool CheckDate(const Variant& value, const TypeInfo& type) {
  if (type.TypeCode() != TypeCode::Date) return value.IsNumber() || value.IsText();
  const std::uint32_t bytes = value.ToBits32();
  const std::uint32_t day = (bytes >> 16) & 0xFF;
  const std::uint32_t month = (bytes >> 8) & 0xFF;
  const int year = 1900 + static_cast<int>(bytes & 0xFF);
  const auto date = std::chrono::year{year} / std::chrono::month{month} / std::chrono::day{day};
  return bytes <= 0xFFFFFF && date.ok();
}

bool IsAcceptable(const Variant& value, const TypeInfo& type, bool strict) {
  const TypeCode code = type.TypeCode();
  if (value.IsNull() || value.Type() == VariantType::Array) return false;
  if (code == TypeCode::NotComputed) return true;
  if (IsText(code)) return CheckText(value, type);
  if (value.IsEmpty()) return false;
  if (IsDate(code)) return CheckDate(value, type);
  return IsIntegral(code) ? CheckIntegral(value, type, strict) : CheckFloating(value, type, strict);
}

bool Accepts(const Variant& value, const TypeInfo& type, bool strict) {
  bool acceptable = false;
  IgnoreFailures([&] { acceptable = IsAcceptable(value, type, strict); });
  return acceptable;
}

// The default lowered, range by range, to each limit below it.
Variant LoweredDefault(const Variant& defaultValue, const TypeInfo& type) {
  Variant lowered = defaultValue;
  for (std::int32_t range = 1; range <= type.RangeCount(); ++range) {
    const Variant& limit =
        type.MinValue(range).IsEmpty() ? type.MaxValue(range) : type.MinValue(range);
    IgnoreFailures([&] {
      if (!limit.IsEmpty() && NumberOf(limit, type.TypeCode()) < NumberOf(lowered, type.TypeCode()))
        lowered = limit;
    });
  }
  return lowered;
}

}  // namespace

bool Variable::CheckValue(const Variant& value, bool strict) const {
  const bool acceptable = Accepts(value, TypeInfo(), strict);
  if (acceptable && strict) *lastAccepted_ = value;
  return acceptable;
}

Variant Variable::FallbackValue() const {
  if (!lastAccepted_->IsEmpty()) return *lastAccepted_;
  if (!defaultValue_.IsEmpty()) return defaultValue_;
  return SubstituteValue();
}

Variant Variable::SubstituteValue() const {
  const ZAFHartTypes::TypeInfo& type = TypeInfo();
  if (!defaultValue_.IsEmpty() && Accepts(defaultValue_, type, true)) return defaultValue_;
  if (IsNumeric(type.TypeCode()) && type.TypeCode() != TypeCode::Float && type.RangeCount() > 0) {
    bool inside = false;
    IgnoreFailures([&] {
      const double number = NumberOf(value_, type.TypeCode());
      for (std::int32_t range = 1; range <= type.RangeCount() && !inside; ++range) {
        inside = IsLimited(type, range) && InRange(number, type, range);
      }
    });
    return inside ? value_ : LoweredDefault(defaultValue_, type);
  }
  if (type.TypeCode() == TypeCode::Enumerated && !type.EnumItems().IsEmpty())
    return type.EnumItems().begin()->Value();
  if (type.TypeCode() == TypeCode::Index && type.IndexedArray() &&
      !type.IndexedArray()->Elements().empty()) {
    return type.IndexedArray()->Elements().front().index;
  }
  return {};
}

}  // namespace ZAFHartTypes
