#pragma once

#include <string>
#include <string_view>

#include "platform/Export.h"

namespace platform {

// The user's conventions for numbers and dates.
struct ZAF_API UserLocale {
  std::string decimalSeparator = ".";  // may be more than one byte of UTF-8
  // Short date: d, dd, M, MM, yy and yyyy stand for the parts, everything else for itself.
  std::string shortDateFormat = "yyyy-MM-dd";

  // `year` is the full year. The parts are written as given, also when they form no valid date.
  std::string FormatShortDate(int day, int month, int year) const;

  // The conventions of the process environment (LC_ALL, else LC_NUMERIC and LC_TIME, else LANG).
  // "C", a locale that the system does not have and a date with other parts give the defaults
  // above. Leaves the process-wide locale alone.
  static UserLocale FromEnvironment();
};

// The short date format for a date format of strftime ("%d.%m.%Y"); empty when it has other parts.
ZAF_API std::string ShortDateFormatOf(std::string_view strftimeFormat);

}  // namespace platform
