#pragma once

#include <string>
#include <string_view>

namespace ZAFHartLib {

// Most places that a width, a precision or a mask may ask for; higher figures count as this one.
inline constexpr int kMostPlaces = 1000;

// Layout of a number. As text: "0" is a digit that is always written, "#" one written only when it
// is significant, "." the user's decimal separator (written even when no digit follows), "E+00" an
// exponent with its sign and at least two digits, "E-00" one with a sign only when it is negative,
// "e" instead of "E" a lower-case letter.
struct NumberMask {
  int minInteger = 0;     // digits always written before the point
  int integerPlaces = 0;  // all placeholders before the point; with an exponent, the digits there
  bool hasPoint = false;
  int minFraction = 0;  // digits always written behind the point
  int maxFraction = 0;
  char exponentLetter = 0;  // 'E', 'e', or 0 for none
  bool plusInExponent = false;

  static NumberMask Parse(std::string_view text);
  // "#." and `fraction` zeros.
  static NumberMask Fraction(int fraction);
};

// The number laid out by the mask. Digits before the point are never cut; the last digit is rounded
// half away from zero, from the 15 significant digits that a double holds. An infinity or NaN gives
// the text that Variant::ToText gives.
std::string FormatMask(double value, const NumberMask& mask);
// An empty mask is the general number display.
std::string FormatMask(double value, std::string_view mask);

// The mask of a C display format such as "8.3f" ("###0.000"); "" for formats other than f, i, d, e.
std::string CFormatToVBFormat(std::string_view format);

}  // namespace ZAFHartLib
