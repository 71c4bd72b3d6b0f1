#include "types/Variant.h"

#include <array>
#include <cmath>

#include "types/Failure.h"
#include "types/NumberText.h"

namespace ZAFHartTypes {
namespace {

// By position in the variant.
constexpr std::array kTypes{VariantType::Empty,    VariantType::Null,    VariantType::Int16,
                            VariantType::Int32,    VariantType::Single,  VariantType::Double,
                            VariantType::Currency, VariantType::Date,    VariantType::String,
                            VariantType::Boolean,  VariantType::Decimal, VariantType::Byte,
                            VariantType::Array};

bool SameItems(const std::vector<Variant>& a, const std::vector<Variant>& b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (!(a[i] == b[i])) return false;
  }
  return true;
}

std::optional<double> ReadAs(VariantType type, const std::string& text) {
  if (type == VariantType::Date) {
    if (const auto serial = TextToDate(text)) return serial;
  }
  if (type == VariantType::Boolean) {
    if (const auto word = TextToBoolean(text)) return *word ? -1 : 0;
  }
  std::optional<double> number;
  IgnoreFailures([&] { number = TextToNumber(text); });
  return number;
}

}  // namespace

VariantType Variant::Type() const {
  return kTypes[value_.index()];
}

bool Variant::IsNumber() const {
  return !IsEmpty() && !IsNull() && !IsText() && Type() != VariantType::Array;
}

bool Variant::IsNotFinite() const {
  if (const auto* single = std::get_if<float>(&value_)) return !std::isfinite(*single);
  if (const auto* number = std::get_if<double>(&value_)) return !std::isfinite(*number);
  return false;
}

const std::vector<Variant>& Variant::Items() const {
  if (const auto* items = std::get_if<ArrayType>(&value_)) return **items;
  throw Failure(ErrorNumber::TypeMismatch, "Variant.Items");
}

const SharedText& Variant::Text() const {
  if (const auto* text = std::get_if<SharedText>(&value_)) return *text;
  throw Failure(ErrorNumber::TypeMismatch, "Variant.Text");
}

std::string Variant::Describe() const {
  if (IsNull()) return "Null";
  if (const auto* items = std::get_if<ArrayType>(&value_)) {
    return "Array(" + std::to_string((*items)->size()) + ")";
  }
  std::string text;
  if (!IgnoreFailures([&] { text = ToText(); })) text = NumberToText(ToDouble());  // no such date
  return text;
}

bool operator==(const Variant& a, const Variant& b) {
  if (a.IsNull() || b.IsNull()) return a.IsNull() && b.IsNull();
  const bool bothEmpty = a.IsEmpty() && b.IsEmpty();
  if (bothEmpty) return true;
  if (a.Type() == VariantType::Array || b.Type() == VariantType::Array) {
    return a.Type() == b.Type() && SameItems(a.Items(), b.Items());
  }
  if (a.IsText() && b.IsText()) return a.Text() == b.Text();
  if (a.IsEmpty() || b.IsEmpty()) {
    const Variant& other = a.IsEmpty() ? b : a;
    return other.IsText() ? other.Text().IsEmpty() : other.ToDouble() == 0;
  }
  if (a.IsText() || b.IsText()) {
    const Variant& text = a.IsText() ? a : b;
    const Variant& number = a.IsText() ? b : a;
    const auto read = ReadAs(number.Type(), text.Text());
    return read && *read == number.ToDouble();
  }
  if (a.Type() == b.Type() && a.Type() == VariantType::Currency) {
    return a.ToCurrency() == b.ToCurrency();  // exact beyond the digits of a double
  }
  return a.ToDouble() == b.ToDouble();
}

}  // namespace ZAFHartTypes
