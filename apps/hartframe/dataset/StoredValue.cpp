#include "hartframe/dataset/StoredValue.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>

#include "hartframe/EscapedText.h"
#include "types/Failure.h"
#include "types/NumberText.h"
#include "types/Utf8.h"

namespace hartframe {

namespace {

using ZAFHartTypes::Currency;
using ZAFHartTypes::Date;
using ZAFHartTypes::Decimal;
using ZAFHartTypes::TypeCode;
using ZAFHartTypes::Variant;
using ZAFHartTypes::VariantType;

template <typename Number, typename... Base>
std::string Digits(Number number, Base... base) {
  char digits[64];
  const auto [end, error] = std::to_chars(std::begin(digits), std::end(digits), number, base...);
  return {std::begin(digits), end};
}

template <typename Number, typename... Base>
std::optional<Number> ReadDigits(std::string_view text, Base... base) {
  Number number{};
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + text.size(), number, base...);
  if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
  return number;
}

template <typename Number>
using BitsOf = std::conditional_t<sizeof(Number) == 4, std::uint32_t, std::uint64_t>;

// What is not a number has its bits, "0x7fa00000": devices tell by them why there is none.
template <typename Number>
std::string FloatText(Number number) {
  if (std::isfinite(number)) return Digits(number);
  return "0x" + Digits(std::bit_cast<BitsOf<Number>>(number), 16);
}

template <typename Number>
std::optional<Number> ReadFloat(std::string_view text) {
  if (!text.starts_with("0x")) {
    const auto number = ReadDigits<Number>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
  }
  const auto bits = ReadDigits<BitsOf<Number>>(text.substr(2), 16);
  if (!bits) return std::nullopt;
  return std::bit_cast<Number>(*bits);
}

template <typename Value, typename Made = Value>
std::optional<Variant> Wrapped(std::optional<Value> value) {
  if (!value) return std::nullopt;
  return Variant(Made{*value});
}

// "12.5", whatever the user's separator is.
std::string DecimalText(const Variant& value) {
  std::string text = value.ToText();
  for (char& c : text) {
    if (c != '-' && (c < '0' || c > '9')) c = '.';
  }
  return text;
}

std::optional<Variant> ReadDecimal(std::string_view text) {
  const auto point = text.find('.');
  std::string digits(text.substr(0, point));
  std::size_t scale = 0;
  if (point != std::string_view::npos) {
    digits += text.substr(point + 1);
    scale = text.size() - point - 1;
  }
  const auto mantissa = ReadDigits<std::int64_t>(digits);
  if (!mantissa || scale > 18) return std::nullopt;
  return Variant(Decimal{*mantissa, static_cast<std::uint8_t>(scale)});
}

// Nothing for a serial that no calendar date has.
std::optional<Variant> ReadDate(std::string_view text) {
  const auto serial = ReadFloat<double>(text);
  if (!serial) return std::nullopt;
  const Variant date(Date{*serial});
  if (!ZAFHartTypes::IgnoreFailures([&] { static_cast<void>(date.ToDate()); })) return std::nullopt;
  return date;
}

std::optional<Variant> ReadBoolean(std::string_view text) {
  if (text == "true") return Variant(true);
  if (text == "false") return Variant(false);
  return std::nullopt;
}

std::optional<Variant> ReadText(std::string_view text) {
  if (!ZAFHartTypes::utf8::IsValid(text)) return std::nullopt;
  return Variant(Unescaped(text));
}

template <Variant (*make)()>
std::optional<Variant> ReadNothing(std::string_view text) {
  if (!text.empty()) return std::nullopt;
  return make();
}

std::string NoText(const Variant&) {
  return {};
}

struct ValueForm {
  VariantType type;
  std::string_view word;
  std::string (*write)(const Variant&);
  std::optional<Variant> (*read)(std::string_view);
};

constexpr std::array kValueForms{
    ValueForm{VariantType::Empty, "empty", NoText, ReadNothing<+[] { return Variant(); }>},
    ValueForm{VariantType::Null, "null", NoText, ReadNothing<Variant::Null>},
    ValueForm{VariantType::Int16, "int16",
              [](const Variant& value) { return Digits(value.ToShort()); },
              [](std::string_view text) { return Wrapped(ReadDigits<std::int16_t>(text)); }},
    ValueForm{VariantType::Int32, "int32",
              [](const Variant& value) { return Digits(value.ToLong()); },
              [](std::string_view text) { return Wrapped(ReadDigits<std::int32_t>(text)); }},
    ValueForm{VariantType::Single, "single",
              [](const Variant& value) { return FloatText(value.ToSingle()); },
              [](std::string_view text) { return Wrapped(ReadFloat<float>(text)); }},
    ValueForm{VariantType::Double, "double",
              [](const Variant& value) { return FloatText(value.ToDouble()); },
              [](std::string_view text) { return Wrapped(ReadFloat<double>(text)); }},
    ValueForm{VariantType::Currency, "currency",
              [](const Variant& value) { return Digits(value.ToCurrency().scaled); },
              [](std::string_view text) {
                return Wrapped<std::int64_t, Currency>(ReadDigits<std::int64_t>(text));
              }},
    ValueForm{VariantType::Date, "date",
              [](const Variant& value) { return FloatText(value.ToDate().serial); }, ReadDate},
    ValueForm{VariantType::String, "text",
              [](const Variant& value) { return Escaped(value.ToText()); }, ReadText},
    ValueForm{
        VariantType::Boolean, "boolean",
        [](const Variant& value) { return std::string(value.ToBoolean() ? "true" : "false"); },
        ReadBoolean},
    ValueForm{VariantType::Decimal, "decimal", DecimalText, ReadDecimal},
    ValueForm{VariantType::Byte, "byte",
              [](const Variant& value) { return Digits(static_cast<unsigned>(value.ToByte())); },
              [](std::string_view text) { return Wrapped(ReadDigits<std::uint8_t>(text)); }},
};

constexpr std::array<std::pair<TypeCode, std::string_view>, 16> kTypeWords{{
    {TypeCode::NotComputed, "unknown"},
    {TypeCode::Float, "float"},
    {TypeCode::Double, "double"},
    {TypeCode::Integer, "integer"},
    {TypeCode::Unsigned, "unsigned"},
    {TypeCode::Enumerated, "enumerated"},
    {TypeCode::BitEnumerated, "bits"},
    {TypeCode::Index, "index"},
    {TypeCode::Ascii, "ascii"},
    {TypeCode::PackedAscii, "packed-ascii"},
    {TypeCode::Password, "password"},
    {TypeCode::BitString, "bit-string"},
    {TypeCode::Date, "date"},
    {TypeCode::Time, "time"},
    {TypeCode::DateAndTime, "date-and-time"},
    {TypeCode::Duration, "duration"},
}};

}  // namespace

std::string StoredValueText(const Variant& value) {
  for (const ValueForm& form : kValueForms) {
    if (form.type == value.Type()) return std::string(form.word) + ' ' + form.write(value);
  }
  throw ZAFHartTypes::Failure(ZAFHartTypes::ErrorNumber::TypeMismatch, "hartframe");
}

std::optional<Variant> ReadStoredValue(std::string_view text) {
  const auto blank = text.find(' ');
  if (blank == std::string_view::npos) return std::nullopt;
  for (const ValueForm& form : kValueForms) {
    if (form.word == text.substr(0, blank)) return form.read(text.substr(blank + 1));
  }
  return std::nullopt;
}

std::string_view TypeWord(TypeCode code) {
  for (const auto& [known, word] : kTypeWords) {
    if (known == code) return word;
  }
  return kTypeWords.front().second;
}

std::optional<TypeCode> ReadTypeWord(std::string_view word) {
  for (const auto& [code, known] : kTypeWords) {
    if (known == word) return code;
  }
  return std::nullopt;
}

}  // namespace hartframe
