#include "hartframe/values/ValueText.h"

#include <charconv>
#include <chrono>
#include <cmath>
#include <optional>

#include "ddobjects/ItemArray.h"
#include "hartframe/LanguageSegments.h"
#include "hartframe/values/VariableRow.h"
#include "platform/Platform.h"
#include "types/Failure.h"
#include "types/NumberText.h"
#include "types/Utf8.h"

namespace hartframe {

namespace {

using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Failure;
using ZAFHartTypes::TypeCode;
using ZAFHartTypes::TypeInfo;
using ZAFHartTypes::Variable;
using ZAFHartTypes::Variant;

[[noreturn]] void RaiseMismatch() {
  throw Failure(ErrorNumber::TypeMismatch, "hartframe");
}

std::string_view Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::optional<double> ReadNumber(std::string_view text) {
  double number = 0;
  const std::string_view digits = text.starts_with('+') ? text.substr(1) : text;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error == std::errc{} && end == digits.data() + digits.size()) return number;
  return ZAFHartTypes::TextToNumber(text);
}

std::optional<std::int64_t> ReadHex(std::string_view text) {
  if (!text.starts_with("0x") && !text.starts_with("0X")) return std::nullopt;
  std::uint32_t number = 0;
  const char* const last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data() + 2, last, number, 16);
  if (error != std::errc{} || end != last) return std::nullopt;
  return number;
}

double ScaleOf(const TypeInfo& type) {
  const Variant& factor = type.ScalingFactor();
  const double scale = factor.IsEmpty() ? 1 : factor.ToDouble();
  return scale == 0 ? 1 : scale;
}

Variant WholeNumber(double number) {
  if (!(std::abs(number) <= 4294967295.0) || number != std::floor(number)) RaiseMismatch();
  if (number > 2147483647.0) return number;
  return static_cast<std::int32_t>(number);
}

double ParseScaled(std::string_view text, const TypeInfo& type) {
  const auto number = ReadNumber(text);
  if (!number) RaiseMismatch();
  return *number / ScaleOf(type);
}

Variant ParseInteger(std::string_view text, const TypeInfo& type) {
  if (const auto hex = ReadHex(text)) return WholeNumber(static_cast<double>(*hex));
  const double number = ParseScaled(text, type);
  // A scale that is no power of two leaves a trace behind the point.
  const double nearest = std::round(number);
  return WholeNumber(std::abs(number - nearest) < 1e-6 ? nearest : number);
}

// The code of the entry with that code or text.
template <typename Entries, typename CodeOf, typename TextOf>
std::optional<std::int32_t> FindEntry(std::string_view text, const Entries& entries, CodeOf codeOf,
                                      TextOf textOf) {
  for (const auto& entry : entries) {
    if (HasSegment(textOf(entry), text)) return codeOf(entry);
  }
  return std::nullopt;
}

std::optional<std::int32_t> FindEnumItem(std::string_view text,
                                         const ZAFHartTypes::EnumList& items) {
  return FindEntry(
      text, items, [](const auto& item) { return item.Value(); },
      [](const auto& item) -> const std::string& { return item.Description(); });
}

Variant ParseCode(std::string_view text, std::optional<std::int32_t> byText) {
  if (byText) return *byText;
  if (const auto hex = ReadHex(text)) return WholeNumber(static_cast<double>(*hex));
  const auto number = ReadNumber(text);
  if (!number) RaiseMismatch();
  return WholeNumber(*number);
}

Variant ParseIndex(std::string_view text, const TypeInfo& type) {
  if (!type.IndexedArray()) return ParseCode(text, std::nullopt);
  return ParseCode(
      text,
      FindEntry(
          text, type.IndexedArray()->Elements(), [](const auto& element) { return element.index; },
          [](const auto& element) -> const std::string& { return element.description.Text(); }));
}

Variant ParseBits(std::string_view text, const TypeInfo& type) {
  std::uint32_t bits = 0;
  while (true) {
    const auto plus = text.find('+');
    const std::string_view part = Trimmed(text.substr(0, plus));
    bits |= ParseCode(part, FindEnumItem(part, type.BitItems())).ToBits32();
    if (plus == std::string_view::npos) return WholeNumber(bits);
    text.remove_prefix(plus + 1);
  }
}

// Day, month and year - 1900 in three bytes.
Variant ParseDate(std::string_view text) {
  const auto serial = ZAFHartTypes::TextToDate(text);
  if (!serial) return ParseCode(text, std::nullopt);
  using std::chrono::days;
  const std::chrono::sys_days zero = std::chrono::year{1899} / 12 / 30;
  const std::chrono::year_month_day date{zero + days(static_cast<int>(std::floor(*serial)))};
  const int year = static_cast<int>(date.year()) - 1900;
  if (year < 0 || year > 255) RaiseMismatch();
  return static_cast<std::int32_t>((static_cast<unsigned>(date.day()) << 16) |
                                   (static_cast<unsigned>(date.month()) << 8) |
                                   static_cast<unsigned>(year));
}

Variant ParseText(std::string_view text) {
  if (!ZAFHartTypes::utf8::IsValid(text)) RaiseMismatch();
  return Variant(text);
}

template <typename Number>
std::string ShortestNumber(Number number) {
  char digits[64];
  const auto [end, error] = std::to_chars(std::begin(digits), std::end(digits), number);
  return {std::begin(digits), end};
}

std::string FormatDate(std::uint32_t bytes) {
  const platform::UserLocale plain;
  return plain.FormatShortDate(static_cast<int>((bytes >> 16) & 0xFF),
                               static_cast<int>((bytes >> 8) & 0xFF),
                               1900 + static_cast<int>(bytes & 0xFF));
}

// Single precision that was widened needs no more digits than it had.
std::string ShortestOfEither(double number) {
  const auto narrow = static_cast<float>(number);
  return static_cast<double>(narrow) == number ? ShortestNumber(narrow) : ShortestNumber(number);
}

}  // namespace

Variant ParseValue(std::string_view text, const Variable& variable) {
  const TypeInfo& type = variable.TypeInfo();
  if (IsText(type.TypeCode())) return ParseText(text);
  text = Trimmed(text);
  switch (type.TypeCode()) {
    case TypeCode::Integer:
    case TypeCode::Unsigned:
      return ParseInteger(text, type);
    case TypeCode::Enumerated:
      return ParseCode(text, FindEnumItem(text, type.EnumItems()));
    case TypeCode::BitEnumerated:
      return ParseBits(text, type);
    case TypeCode::Index:
      return ParseIndex(text, type);
    case TypeCode::Date:
    case TypeCode::Time:
    case TypeCode::DateAndTime:
    case TypeCode::Duration:
      return ParseDate(text);
    default:
      return ParseScaled(text, type);
  }
}

std::optional<Variant> AcceptedValue(std::string_view text, const Variable& variable) {
  Variant value;
  const bool read = ZAFHartTypes::IgnoreFailures([&] { value = ParseValue(text, variable); });
  if (read && variable.CheckValue(value, true)) return value;
  return std::nullopt;
}

std::string QuestionText(const Variable& variable, const Variant& value, const Speech& speech) {
  const TypeInfo& type = variable.TypeInfo();
  const bool isPlain =
      (type.TypeCode() == TypeCode::Float || type.TypeCode() == TypeCode::Double) &&
      type.DisplayFormat().empty() && value.IsNumber();
  const double number = isPlain ? value.ToDouble() : NAN;
  if (!std::isfinite(number)) return DisplayValue(variable, value, speech);
  std::string text = ShortestOfEither(number * ScaleOf(type));
  const auto point = text.find('.');
  if (point != std::string::npos)
    text.replace(point, 1, platform::Current().Locale().decimalSeparator);
  return text;
}

std::string StoredText(const Variant& value, const Variable& variable) {
  const TypeInfo& type = variable.TypeInfo();
  if (type.TypeCode() == TypeCode::Date) return FormatDate(value.ToBits32());
  if (value.IsText() || IsText(type.TypeCode())) return value.ToText();
  double number = value.ToDouble();
  // Unsigned values above 2147483647 are held as negative 32-bit integers.
  if (type.TypeCode() == TypeCode::Unsigned && number < 0) number += 4294967296.0;
  return ShortestNumber(IsNumeric(type.TypeCode()) ? number * ScaleOf(type) : number);
}

}  // namespace hartframe
