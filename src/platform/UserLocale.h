#pragma once

#include <string>

namespace platform {

// The user's conventions for numbers and dates.
struct UserLocale {
  std::string decimalSeparator = ".";
  // Short date: d, dd, M, MM, yy and yyyy stand for the parts, everything else for itself.
  std::string shortDateFormat = "yyyy-MM-dd";

  // `year` is the full year. The parts are written as given, also when they form no valid date.
  std::string FormatShortDate(int day, int month, int year) const;

  // The conventions of the process environment (LC_ALL, LC_NUMERIC, LC_TIME); "C" gives the
  // defaults above.
  static UserLocale FromEnvironment();
};

}  // namespace platform
