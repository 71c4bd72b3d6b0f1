#include "text/NumberMask.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "platform/Platform.h"
#include "text/TextHelpers.h"
#include "types/NumberText.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::kDoubleDigits;

// |value| = 0.d1d2d3… x 10^point, without trailing zeros; no digits for 0.
struct Digits {
  std::array<char, kDoubleDigits + 1> digit;
  int count = 0;
  int point = 0;

  explicit Digits(double value) {
    std::array<char, 32> text;
    const char* end = std::to_chars(text.data(), text.data() + text.size(), std::fabs(value),
                                    std::chars_format::scientific, kDoubleDigits - 1)
                          .ptr;
    digit[0] = text[0];
    std::copy_n(text.data() + 2, kDoubleDigits - 1, digit.data() + 1);
    const char* exponent = text.data() + kDoubleDigits + 2;  // behind "d.ddd…e"
    std::from_chars(exponent + (*exponent == '+' ? 1 : 0), end, point);
    ++point;
    Keep(kDoubleDigits);
    if (count == 0) point = 0;
  }

  char At(int index) const { return index >= 0 && index < count ? digit[Index(index)] : '0'; }

  void Keep(int most) {
    count = most;
    while (count > 0 && digit[Index(count - 1)] == '0') --count;
  }

  // Rounds to `places` behind the point, half away from zero.
  void Round(int places) {
    const int kept = point + places;
    if (kept >= count) return;
    const bool up = kept >= 0 && At(kept) >= '5';
    Keep(std::max(kept, 0));
    if (up) Increment(kept);
  }

 private:
  static std::size_t Index(int index) { return static_cast<std::size_t>(index); }

  // Adds one at the position behind `length` digits.
  void Increment(int length) {
    std::fill(digit.begin() + count, digit.begin() + length, '0');
    int last = length - 1;
    while (last >= 0 && digit[Index(last)] == '9') --last;
    if (last >= 0) {
      ++digit[Index(last)];
      count = last + 1;
    } else {
      digit[0] = '1';
      count = 1;
      ++point;
    }
  }
};

void AppendFixed(std::string& text, const Digits& digits, const NumberMask& mask) {
  text.append(static_cast<std::size_t>(std::max(mask.minInteger - std::max(digits.point, 0), 0)),
              '0');
  for (int i = 0; i < digits.point; ++i) text += digits.At(i);
  if (!mask.hasPoint) return;
  text += platform::Current().Locale().decimalSeparator;
  for (int i = 0; i < mask.maxFraction; ++i) {
    const int index = digits.point + i;
    if (i >= mask.minFraction && index >= digits.count) return;
    text += digits.At(index);
  }
}

void AppendExponent(std::string& text, int exponent, const NumberMask& mask) {
  text += mask.exponentLetter;
  if (exponent < 0) {
    text += '-';
  } else if (mask.plusInExponent) {
    text += '+';
  }
  if (std::abs(exponent) < 10) text += '0';
  text += std::to_string(std::abs(exponent));
}

std::string Zeros(int count) {
  return std::string(static_cast<std::size_t>(std::max(count, 0)), '0');
}

std::string PlainMask(bool zero, int width, int precision) {
  if (width == 0) return {};
  std::string mask =
      zero ? Zeros(width) : std::string(static_cast<std::size_t>(width - 1), '#') + "0";
  if (precision > 0) {
    mask.resize(static_cast<std::size_t>(std::max(width - precision - 2, 0)));
    mask += "0." + Zeros(precision);
  }
  return mask;
}

}  // namespace

NumberMask NumberMask::Fraction(int fraction) {
  NumberMask mask;
  mask.integerPlaces = 1;
  mask.hasPoint = true;
  mask.minFraction = mask.maxFraction = std::min(fraction, kMostPlaces);
  return mask;
}

NumberMask NumberMask::Parse(std::string_view text) {
  NumberMask mask;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == 'E' || c == 'e') {
      mask.exponentLetter = c;
      mask.plusInExponent = text.substr(i + 1).starts_with('+');
      break;
    }
    if (c == '.') mask.hasPoint = true;
    if (c != '0' && c != '#') continue;
    if (mask.hasPoint) {
      ++mask.maxFraction;
      if (c == '0') mask.minFraction = mask.maxFraction;
    } else {
      ++mask.integerPlaces;
      if (c == '0' || mask.minInteger > 0) ++mask.minInteger;
    }
  }
  return mask;
}

std::string FormatMask(double value, const NumberMask& mask) {
  if (!std::isfinite(value)) return ZAFHartTypes::NumberToText(value);
  Digits digits(value);
  int exponent = 0;
  if (mask.exponentLetter != 0 && digits.count > 0) {
    exponent = digits.point - mask.integerPlaces;
    digits.point = mask.integerPlaces;
  }
  digits.Round(mask.maxFraction);
  if (mask.exponentLetter != 0 && digits.point > mask.integerPlaces) {
    ++exponent;  // 9.99 became 10.0
    --digits.point;
  }
  std::string text;
  if (value < 0 && digits.count > 0) text += '-';
  AppendFixed(text, digits, mask);
  if (mask.exponentLetter != 0) AppendExponent(text, exponent, mask);
  return text;
}

std::string FormatMask(double value, std::string_view mask) {
  return mask.empty() ? ZAFHartTypes::NumberToText(value)
                      : FormatMask(value, NumberMask::Parse(mask));
}

std::string CFormatToVBFormat(std::string_view format) {
  const bool zero = format.starts_with('0');
  int width = std::max(TakeNumber(format, kMostPlaces), 0);
  int precision = 0;
  if (format.starts_with('.')) {
    format.remove_prefix(1);
    precision = std::max(TakeNumber(format, kMostPlaces), 0);
    if (precision == 0 && width == 0) width = 1;
  }
  if (width < precision) width = precision + 2;
  const std::string mask = PlainMask(zero, width, precision);
  if (!format.empty() && std::string_view{"lhL"}.find(format[0]) != std::string_view::npos)
    format.remove_prefix(1);
  switch (format.empty() ? '\0' : format[0]) {
    case 'f':
    case 'i':
    case 'd':
      return mask;
    case 'e':
    case 'E':
      return precision < 1 ? "#." + mask.substr(std::min<std::size_t>(2, mask.size())) + "E+00"
                           : mask + "E+00";
    default:
      return {};
  }
}

}  // namespace ZAFHartLib
