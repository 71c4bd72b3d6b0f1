#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Export.h"

// Numbers and dates as texts, by the OLE Automation rules and the current platform's locale.
namespace ZAFHartTypes {

// Most significant digits that a text shows of a single and of a double.
inline constexpr int kSingleDigits = 7;
inline constexpr int kDoubleDigits = 15;

// The text of at most `digits` significant digits, without trailing zeros; exponent
// form ("1E+15", "1E-05") for numbers of more digits than that before the point or with four and
// more zeros behind it. "1.#INF", "-1.#INF" and "-1.#IND" for what is not finite.
ZAF_API std::string NumberToText(double value, int digits = kDoubleDigits);
// mantissa / 10^scale in full, without trailing zeros.
ZAF_API std::string ScaledToText(std::int64_t mantissa, unsigned scale);

// Reads [blanks][sign]digits[separator digits][E[sign]digits][blanks]; nothing for other texts.
// Raises Overflow for a number beyond a double.
ZAF_API std::optional<double> TextToNumber(std::string_view text);

// "True" and "False" in any letter case; nothing for other texts.
ZAF_API std::optional<bool> TextToBoolean(std::string_view text);

// Serial numbers of dates, days since 30 December 1899.
ZAF_API std::string DateToText(double serial);
// Reads "yyyy-MM-dd" or the user's short date, with or without a time of day ("HH:mm" or
// "HH:mm:ss"), or the time alone; nothing for other texts.
ZAF_API std::optional<double> TextToDate(std::string_view text);
// Nothing when the three do not form a date.
ZAF_API std::optional<double> DateSerial(int year, int month, int day);

}  // namespace ZAFHartTypes
