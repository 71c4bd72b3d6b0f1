#include <cmath>
#include <limits>
#include <type_traits>

#include "types/Failure.h"
#include "types/NumberText.h"
#include "types/Variant.h"

namespace ZAFHartTypes {
namespace {

constexpr double kFirstDate = -657434;  // 1 January 100
constexpr double kDateLimit = 2958466;  // 1 January 10000
constexpr double kCurrencyUnit = 10000;

[[noreturn]] void Raise(ErrorNumber number) {
  throw Failure(number, "Variant");
}

double PowerOfTen(unsigned exponent) {
  double power = 1;
  for (; exponent > 0; --exponent) power *= 10;
  return power;
}

// Rounds halves to the even neighbour (the default rounding direction).
template <typename Integer>
Integer RoundTo(double value) {
  const double rounded = std::nearbyint(value);
  constexpr double kBelow = double(std::numeric_limits<Integer>::min()) - 1;
  constexpr double kAbove = double(std::numeric_limits<Integer>::max()) + 1;
  if (!(rounded > kBelow && rounded < kAbove)) Raise(ErrorNumber::Overflow);
  return static_cast<Integer>(rounded);
}

double CheckedDate(double serial) {
  if (!(serial >= kFirstDate && serial < kDateLimit)) Raise(ErrorNumber::Overflow);
  return serial;
}

// The number that any convertible value stands for.
struct AsDouble {
  double operator()(std::monostate) const { return 0; }
  double operator()(NullValue) const { Raise(ErrorNumber::TypeMismatch); }
  template <typename Number>
  requires std::is_arithmetic_v<Number>
  double operator()(Number value) const { return static_cast<double>(value); }
  double operator()(bool value) const { return value ? -1 : 0; }
  double operator()(Currency value) const { return double(value.scaled) / kCurrencyUnit; }
  double operator()(Date value) const { return value.serial; }
  double operator()(Decimal value) const {
    return double(value.mantissa) / PowerOfTen(value.scale);
  }
  double operator()(const SharedText& text) const {
    if (const auto number = TextToNumber(text.Text())) return *number;
    Raise(ErrorNumber::TypeMismatch);
  }
  double operator()(const Variant::ArrayType&) const { Raise(ErrorNumber::TypeMismatch); }
};

struct AsText {
  std::string operator()(std::monostate) const { return {}; }
  std::string operator()(NullValue) const { Raise(ErrorNumber::TypeMismatch); }
  template <typename Integer>
  requires std::is_integral_v<Integer> std::string operator()(Integer value) const {
    return std::to_string(value);
  }
  std::string operator()(float value) const { return NumberToText(value, kSingleDigits); }
  std::string operator()(double value) const { return NumberToText(value, kDoubleDigits); }
  std::string operator()(bool value) const { return value ? "True" : "False"; }
  std::string operator()(Currency value) const { return ScaledToText(value.scaled, 4); }
  std::string operator()(Date value) const { return DateToText(CheckedDate(value.serial)); }
  std::string operator()(Decimal value) const { return ScaledToText(value.mantissa, value.scale); }
  std::string operator()(const SharedText& text) const { return text; }
  std::string operator()(const Variant::ArrayType&) const { Raise(ErrorNumber::TypeMismatch); }
};

}  // namespace

double Variant::ToDouble() const {
  return std::visit(AsDouble{}, value_);
}

std::int16_t Variant::ToShort() const {
  if (const auto* value = std::get_if<std::int16_t>(&value_)) return *value;
  return RoundTo<std::int16_t>(ToDouble());
}

std::int32_t Variant::ToLong() const {
  if (const auto* value = std::get_if<std::int32_t>(&value_)) return *value;
  return RoundTo<std::int32_t>(ToDouble());
}

std::uint8_t Variant::ToByte() const {
  if (const auto* value = std::get_if<std::uint8_t>(&value_)) return *value;
  if (const auto* value = std::get_if<bool>(&value_)) return *value ? 0xFF : 0;
  return RoundTo<std::uint8_t>(ToDouble());
}

float Variant::ToSingle() const {
  if (const auto* value = std::get_if<float>(&value_)) return *value;
  const double value = ToDouble();
  const auto single = static_cast<float>(value);
  if (std::isinf(single) && std::isfinite(value)) Raise(ErrorNumber::Overflow);
  return single;
}

Currency Variant::ToCurrency() const {
  if (const auto* value = std::get_if<Currency>(&value_)) return *value;
  const double scaled = std::nearbyint(ToDouble() * kCurrencyUnit);
  constexpr double kLimit = 9223372036854775808.0;  // 2^63
  if (!(scaled >= -kLimit && scaled < kLimit)) Raise(ErrorNumber::Overflow);
  return Currency{static_cast<std::int64_t>(scaled)};
}

Date Variant::ToDate() const {
  if (const auto* text = std::get_if<SharedText>(&value_)) {
    if (const auto serial = TextToDate(text->Text())) return Date{*serial};
  }
  return Date{CheckedDate(ToDouble())};
}

bool Variant::ToBoolean() const {
  if (const auto* text = std::get_if<SharedText>(&value_)) {
    if (const auto word = TextToBoolean(text->Text())) return *word;
  }
  return ToDouble() != 0;
}

std::string Variant::ToText() const {
  return std::visit(AsText{}, value_);
}

std::uint32_t Variant::ToBits32() const {
  if (const auto* value = std::get_if<std::int32_t>(&value_)) {
    return static_cast<std::uint32_t>(*value);
  }
  const double value = std::nearbyint(ToDouble());
  if (!(value >= -2147483648.0 && value <= 4294967295.0)) Raise(ErrorNumber::Overflow);
  return static_cast<std::uint32_t>(static_cast<std::int64_t>(value));
}

}  // namespace ZAFHartTypes
