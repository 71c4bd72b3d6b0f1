#include "text/modDDPrintF.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "platform/AsciiText.h"
#include "text/NumberMask.h"
#include "text/TextHelpers.h"
#include "types/Failure.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::PromptValues;
using ZAFHartTypes::Variant;

constexpr std::string_view kLabelSuffix = "LABEL";

// The part of a reference in brackets.
struct Conversion {
  int width = -1;
  int precision = -1;
  bool zero = false;
  char letter = 0;  // 0 for none
};

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
bool IsNameCharacter(char c) {
  return IsDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool Take(std::string_view& rest, char expected) {
  if (!rest.starts_with(expected)) return false;
  rest.remove_prefix(1);
  return true;
}

// Reads what stands behind "%["; nothing when there is no "]".
std::optional<Conversion> TakeConversion(std::string_view& rest) {
  Conversion conversion;
  conversion.zero = Take(rest, '0');
  conversion.width = TakeNumber(rest, kMostPlaces);
  if (Take(rest, '.')) conversion.precision = TakeNumber(rest, kMostPlaces);
  if (!rest.empty() && rest.front() != ']') conversion.letter = rest.front();
  const std::size_t end = rest.find(']');
  if (end == std::string_view::npos) return {};
  rest.remove_prefix(end + 1);
  return conversion;
}

// Reads "{name}" or the bare name; nothing when there is no "}".
std::optional<std::string_view> TakeName(std::string_view& rest) {
  if (!Take(rest, '{')) return ReadReferenceName(rest);
  const std::size_t end = rest.find('}');
  if (end == std::string_view::npos) return {};
  const std::string_view name = platform::Trim(rest.substr(0, end));
  rest.remove_prefix(end + 1);
  return name;
}

std::string Convert(const Variant& value, const Conversion& conversion) {
  const auto [width, precision, zero, letter] = conversion;
  switch (letter) {
    case 'd':
    case 'i':
    case 'u':
      return FormatDecimal(value.ToLong(), width, zero);
    case 'o':
      return FormatRadix(value.ToLong(), 8, width, zero, false);
    case 'x':
    case 'X':
      return FormatRadix(value.ToLong(), 16, width, zero, letter == 'X');
    case 'f':
      return FormatFixed(value.ToDouble(), width, precision, zero);
    case 'e':
    case 'E':
      return FormatExponent(value.ToDouble(), width, precision, zero, letter);
    case 'g':
    case 'G': {
      const double number = value.ToDouble();
      std::string text = FormatFixed(number, width, precision, zero);
      const bool tooLong = width > 6 && text.size() > static_cast<std::size_t>(width);
      return tooLong ? FormatExponent(number, width, precision, zero, letter) : text;
    }
    default:
      return value.ToText();
  }
}

const Variant* FindValue(const PromptValues& values, std::string_view name, char conversion) {
  if (conversion != 'L') return values.Find(name);
  return values.Find(std::string(name).append(kLabelSuffix));
}

// Appends the formatted value; false when there is none, or it does not convert.
bool AppendValue(std::string& result, const PromptValues& values, std::string_view name,
                 const Conversion& conversion) {
  const Variant* value = FindValue(values, name, conversion.letter);
  return value != nullptr &&
         ZAFHartTypes::IgnoreFailures([&] { result += Convert(*value, conversion); });
}

// Appends what the reference behind a "%" stands for and takes it off `rest`; false, and nothing
// taken, for a malformed one.
bool AppendReference(std::string& result, std::string_view& rest, const PromptValues& values) {
  std::string_view behind = rest;
  std::optional<Conversion> conversion = Conversion{};
  if (Take(behind, '[')) conversion = TakeConversion(behind);
  if (!conversion) return false;
  const auto name = TakeName(behind);
  if (!name) return false;
  rest = behind;
  if (!AppendValue(result, values, *name, *conversion) && Take(rest, '%')) result += '%';
  return true;
}

// Pads to `width` in front or, with `zero`, behind the sign.
std::string Padded(std::string text, int width, bool zero) {
  const int length = static_cast<int>(text.size());
  if (length >= width) return text;
  const std::size_t position = zero && text.starts_with('-') ? 1 : 0;
  text.insert(position, static_cast<std::size_t>(std::min(width, kMostPlaces) - length),
              zero ? '0' : ' ');
  return text;
}

int Missing(const std::string& text, int width) {
  return std::max(width - static_cast<int>(text.size()), 0);
}

}  // namespace

std::string_view ReadReferenceName(std::string_view& rest) {
  const auto end = std::ranges::find_if_not(rest, IsNameCharacter);
  const std::string_view name = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
  rest.remove_prefix(name.size());
  return name;
}

std::string_view NotFiniteText(double value) {
  if (std::isnan(value)) return "IEEE#: NOT A NUMBER";
  return value < 0 ? "IEEE#: -INFINITE" : "IEEE#: +INFINITE";
}

std::string FormatDecimal(std::int32_t number, int width, bool zero) {
  return Padded(std::to_string(number), width, zero);
}

std::string FormatRadix(std::int32_t number, std::uint32_t radix, int width, bool zero,
                        bool upper) {
  const char* digits = upper ? "0123456789ABCDEF" : "0123456789abcdef";
  std::string text;
  auto rest = static_cast<std::uint32_t>(number);
  do {
    text += digits[rest % radix];
    rest /= radix;
  } while (rest != 0);
  std::ranges::reverse(text);
  return Padded(std::move(text), width, zero);
}

std::string FormatFixed(double value, int width, int precision, bool zero) {
  if (!std::isfinite(value)) return std::string(NotFiniteText(value));
  if (precision >= 0)
    return Padded(FormatMask(value, NumberMask::Fraction(precision)), width, zero);
  const int missing = width > 0 ? Missing(FormatMask(value, NumberMask::Fraction(1)), width) : 0;
  if (missing == 0) return FormatMask(value, NumberMask{.minInteger = 1, .integerPlaces = 1});
  return FormatMask(value, NumberMask::Fraction(1 + missing));
}

std::string FormatExponent(double value, int width, int precision, bool zero, char conversion) {
  if (!std::isfinite(value)) return std::string(NotFiniteText(value));
  NumberMask mask = NumberMask::Fraction(precision >= 0 ? precision : 1);
  mask.exponentLetter = conversion >= 'a' ? 'e' : 'E';
  mask.plusInExponent = std::fabs(value) >= 1;
  std::string text = FormatMask(value, mask);
  if (precision >= 0) return Padded(std::move(text), width, zero);
  const int missing = Missing(text, width);
  if (missing == 0) return text;
  mask.minFraction = mask.maxFraction = std::min(1 + missing, kMostPlaces);
  return FormatMask(value, mask);
}

std::string FormatDDString(std::string_view prompt, const PromptValues& values) {
  std::string result;
  result.reserve(prompt.size() + 16);
  std::string_view rest = prompt;
  for (;;) {
    const std::size_t reference = rest.find('%');
    result += rest.substr(0, reference);
    if (reference == std::string_view::npos) return result;
    rest.remove_prefix(reference + 1);
    if (!AppendReference(result, rest, values)) result += '%';
  }
}

}  // namespace ZAFHartLib
