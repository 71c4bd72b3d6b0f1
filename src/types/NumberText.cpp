#include "types/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "platform/AsciiText.h"
#include "platform/Platform.h"
#include "types/Failure.h"

namespace ZAFHartTypes {
namespace {

const std::string& Separator() {
  return platform::Current().Locale().decimalSeparator;
}

bool TakeSign(std::string_view& text) {
  if (text.empty() || (text.front() != '+' && text.front() != '-')) return false;
  const bool negative = text.front() == '-';
  text.remove_prefix(1);
  return negative;
}

std::string_view TakeDigits(std::string_view& text) {
  const std::size_t end = std::min(text.find_first_not_of("0123456789"), text.size());
  const std::string_view digits = text.substr(0, end);
  text.remove_prefix(end);
  return digits;
}

// The number's parts; `ok` when the text has no others.
struct NumberParts {
  bool negative = false;
  std::string_view whole;
  std::string_view fraction;
  bool exponentNegative = false;
  std::string_view exponent;
  bool ok = false;
};

NumberParts Split(std::string_view text) {
  NumberParts parts;
  parts.negative = TakeSign(text);
  parts.whole = TakeDigits(text);
  if (const std::string& separator = Separator();
      !separator.empty() && text.starts_with(separator)) {
    text.remove_prefix(separator.size());
    parts.fraction = TakeDigits(text);
  }
  if (!text.empty() && (text.front() == 'E' || text.front() == 'e')) {
    text.remove_prefix(1);
    parts.exponentNegative = TakeSign(text);
    parts.exponent = TakeDigits(text);
    if (parts.exponent.empty()) return parts;
  }
  parts.ok = text.empty() && !(parts.whole.empty() && parts.fraction.empty());
  return parts;
}

double Evaluate(const NumberParts& parts) {
  std::string plain;
  plain.reserve(parts.whole.size() + parts.fraction.size() + parts.exponent.size() + 4);
  plain.append("0").append(parts.whole).append(".").append(parts.fraction);
  if (!parts.exponent.empty()) {
    plain.append(parts.exponentNegative ? "e-" : "e").append(parts.exponent);
  }
  double value = 0;
  if (std::from_chars(plain.data(), plain.data() + plain.size(), value).ec == std::errc{}) {
    return value;
  }
  const bool tiny = parts.exponent.empty()
                        ? parts.whole.find_first_not_of('0') == std::string_view::npos
                        : parts.exponentNegative;
  if (tiny) return 0;
  throw Failure(ErrorNumber::Overflow, "Variant");
}

}  // namespace

std::string NumberToText(double value, int digits) {
  if (std::isnan(value)) return "-1.#IND";
  if (std::isinf(value)) return value < 0 ? "-1.#INF" : "1.#INF";
  if (value == 0) return "0";
  std::array<char, 40> buffer;
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    std::chars_format::general, digits);
  std::string text(buffer.data(), result.ptr);
  if (const std::size_t exponent = text.find('e'); exponent != std::string::npos)
    text[exponent] = 'E';
  if (const std::size_t point = text.find('.'); point != std::string::npos) {
    text.replace(point, 1, Separator());
  }
  return text;
}

std::string ScaledToText(std::int64_t mantissa, unsigned scale) {
  const bool negative = mantissa < 0;
  std::string digits = std::to_string(mantissa).substr(negative ? 1 : 0);
  if (digits.size() <= scale) digits.insert(0, scale + 1 - digits.size(), '0');
  std::string fraction = digits.substr(digits.size() - scale);
  fraction.erase(fraction.find_last_not_of('0') + 1);
  std::string text = negative ? "-" : "";
  text.append(digits, 0, digits.size() - scale);
  if (!fraction.empty()) text.append(Separator()).append(fraction);
  return text;
}

std::optional<double> TextToNumber(std::string_view text) {
  const NumberParts parts = Split(platform::Trim(text));
  if (!parts.ok) return {};
  const double value = Evaluate(parts);
  return parts.negative ? -value : value;
}

std::optional<bool> TextToBoolean(std::string_view text) {
  const std::string_view word = platform::Trim(text);
  if (platform::EqualsNoCase(word, "True")) return true;
  if (platform::EqualsNoCase(word, "False")) return false;
  return {};
}

}  // namespace ZAFHartTypes
