#include "linksim/ValueText.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <optional>

#include "hart/DateText.h"
#include "linksim/ItemLayout.h"
#include "types/Failure.h"

namespace HartLinkSim {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Failure;
using ZAFHartTypes::TypeCode;
using ZAFHartTypes::Variant;
using ZAFHartTypes::VariantType;

namespace {

constexpr std::string_view kNaN = "nan:";
constexpr std::string_view kHex = "0x";
// "Not a number" as HART devices send it.
constexpr std::uint32_t kHartNaN = 0x7FA00000;

template <typename Word>
std::string HexOf(Word word, std::size_t digits) {
  char text[2 * sizeof(Word)];
  const auto [end, error] = std::to_chars(text, text + sizeof text, word, 16);
  std::string hex(text, end);
  std::transform(hex.begin(), hex.end(), hex.begin(), [](char c) {
    return c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c;
  });
  hex.insert(0, digits > hex.size() ? digits - hex.size() : 0, '0');
  return std::string(kHex) + hex;
}

template <typename Number>
using WordOf = std::conditional_t<sizeof(Number) == 4, std::uint32_t, std::uint64_t>;

template <typename Number>
std::string FloatingText(Number number) {
  if (std::isnan(number)) {
    return std::string(kNaN) + HexOf(std::bit_cast<WordOf<Number>>(number), 2 * sizeof(Number));
  }
  char text[32];
  const auto [end, error] = std::to_chars(text, text + sizeof text, number);
  return std::string(text, end);
}

// The whole text as a number; nothing for any other text.
template <typename Number, typename... Format>
std::optional<Number> Parse(std::string_view text, Format... format) {
  Number number{};
  const char* const last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, number, format...);
  if (text.empty() || error != std::errc{} || end != last) return std::nullopt;
  return number;
}

template <typename Word>
std::optional<Word> ParseHex(std::string_view text) {
  if (!text.starts_with(kHex)) return std::nullopt;
  return Parse<Word>(text.substr(kHex.size()), 16);
}

[[noreturn]] void RaiseNot(std::string_view text, std::string_view expected) {
  throw Failure(ErrorNumber::TypeMismatch, "HartLinkSim.ValueText",
                "\"" + std::string(text) + "\" is no " + std::string(expected) + ".");
}

template <typename Number>
Number FloatingFromText(std::string_view text) {
  if (text.starts_with(kNaN)) {
    const auto bits = ParseHex<WordOf<Number>>(text.substr(kNaN.size()));
    if (bits && std::isnan(std::bit_cast<Number>(*bits))) return std::bit_cast<Number>(*bits);
  } else if (text == "nan") {
    return static_cast<Number>(std::bit_cast<float>(kHartNaN));
  } else if (const auto number = Parse<Number>(text)) {
    return *number;
  }
  RaiseNot(text, "number (as 12.5, inf or nan:0x7FA00000)");
}

std::int32_t IntegerFromText(std::string_view text, std::int64_t minimum, std::int64_t maximum) {
  const auto hex = ParseHex<std::uint32_t>(text);
  const auto number = hex ? std::optional<std::int64_t>(*hex) : Parse<std::int64_t>(text);
  if (!number || *number < minimum || *number > (hex ? 0xFFFFFFFF : maximum)) {
    RaiseNot(text, "integer (as 12 or 0x0C)");
  }
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(*number));
}

std::string DateText(const Variant& value) {
  const std::uint32_t date = value.ToBits32() & 0xFFFFFF;
  return hart::DateToText(date).value_or(HexOf(date, 2 * hart::kDateSize));
}

std::int32_t DateFromText(std::string_view text) {
  if (const auto date = hart::DateFromText(text)) return static_cast<std::int32_t>(*date);
  if (const auto bytes = ParseHex<std::uint32_t>(text); bytes && *bytes <= 0xFFFFFF) {
    return static_cast<std::int32_t>(*bytes);
  }
  RaiseNot(text, "date (as 2026-11-24 or 0xFFFFFF)");
}

std::string UntypedText(const Variant& value) {
  if (value.Type() == VariantType::Single) return FloatingText(value.ToSingle());
  return value.IsNumber() ? FloatingText(value.ToDouble()) : value.ToText();
}

}  // namespace

std::string ValueText(const Variant& value, TypeCode type) {
  if (value.IsText()) return value.ToText();
  switch (type) {
    case TypeCode::Float:
      return FloatingText(value.ToSingle());
    case TypeCode::Double:
      return FloatingText(value.ToDouble());
    case TypeCode::Integer:
      return std::to_string(value.ToLong());
    case TypeCode::Unsigned:
    case TypeCode::Enumerated:
    case TypeCode::BitEnumerated:
    case TypeCode::Index:
      return std::to_string(value.ToBits32());
    case TypeCode::Date:
      return DateText(value);
    default:
      return UntypedText(value);
  }
}

Variant ValueFromText(std::string_view text, TypeCode type) {
  switch (type) {
    case TypeCode::Float:
      return FloatingFromText<float>(text);
    case TypeCode::Double:
      return FloatingFromText<double>(text);
    case TypeCode::Integer:
      return IntegerFromText(text, INT32_MIN, INT32_MAX);
    case TypeCode::Unsigned:
    case TypeCode::Enumerated:
    case TypeCode::BitEnumerated:
    case TypeCode::Index:
      return IntegerFromText(text, 0, UINT32_MAX);
    case TypeCode::Date:
      return DateFromText(text);
    default:
      return text;
  }
}

}  // namespace HartLinkSim
