#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>

#include "platform/AsciiText.h"
#include "platform/Platform.h"
#include "types/NumberText.h"

namespace ZAFHartTypes {
namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr sys_days kDayZero{std::chrono::year{1899} / 12 / 30};
constexpr int kSecondsPerDay = 86400;
constexpr int kPivotYear = 30;  // two digits below it are of this century

struct DateParts {
  int year = 0;
  int month = 0;
  int day = 0;
};

// Reads up to `most` digits at `position`.
std::optional<int> TakeNumber(std::string_view text, std::size_t& position, std::size_t most) {
  int value = 0;
  const std::size_t start = position;
  while (position < text.size() && position - start < most && text[position] >= '0' &&
         text[position] <= '9') {
    value = value * 10 + (text[position++] - '0');
  }
  if (position == start) return {};
  return value;
}

int FullYear(int year, std::size_t digits) {
  if (digits > 2) return year;
  return year + (year < kPivotYear ? 2000 : 1900);
}

// Reads a date laid out like `format` at `position`.
std::optional<double> TakeDate(std::string_view text, std::size_t& position,
                               std::string_view format) {
  DateParts parts;
  for (std::size_t i = 0; i < format.size();) {
    const char letter = format[i];
    if (letter != 'd' && letter != 'M' && letter != 'y') {
      if (position >= text.size() || text[position] != letter) return {};
      ++position;
      ++i;
      continue;
    }
    while (i < format.size() && format[i] == letter) ++i;
    const std::size_t start = position;
    const auto number = TakeNumber(text, position, letter == 'y' ? 4 : 2);
    if (!number) return {};
    if (letter == 'd') parts.day = *number;
    if (letter == 'M') parts.month = *number;
    if (letter == 'y') parts.year = FullYear(*number, position - start);
  }
  return DateSerial(parts.year, parts.month, parts.day);
}

// Reads "HH:mm" or "HH:mm:ss" as a fraction of a day.
std::optional<double> TakeTime(std::string_view text, std::size_t& position) {
  std::array<int, 3> fields{};
  constexpr std::array<int, 3> kLimits{24, 60, 60};
  std::size_t count = 0;
  while (count < fields.size()) {
    if (count > 0 && (position >= text.size() || text[position] != ':')) break;
    if (count > 0) ++position;
    const auto number = TakeNumber(text, position, 2);
    if (!number || *number >= kLimits[count]) return {};
    fields[count++] = *number;
  }
  if (count < 2) return {};
  return (fields[0] * 3600 + fields[1] * 60 + fields[2]) / double{kSecondsPerDay};
}

std::optional<double> ReadDateAndTime(std::string_view text, std::string_view format) {
  std::size_t position = 0;
  const auto date = TakeDate(text, position, format);
  if (!date || position == text.size()) return date;
  if (text[position] != ' ' && text[position] != 'T') return {};
  ++position;
  const auto time = TakeTime(text, position);
  if (!time || position != text.size()) return {};
  return *date < 0 ? *date - *time : *date + *time;
}

std::string TimeText(int seconds) {
  std::array<char, 16> buffer;
  std::snprintf(buffer.data(), buffer.size(), "%02d:%02d:%02d", seconds / 3600, seconds / 60 % 60,
                seconds % 60);
  return buffer.data();
}

}  // namespace

std::optional<double> DateSerial(int year, int month, int day) {
  if (year < 100 || year > 9999 || month < 1 || day < 1) return {};
  const year_month_day date{std::chrono::year{year},
                            std::chrono::month{static_cast<unsigned>(month)},
                            std::chrono::day{static_cast<unsigned>(day)}};
  if (!date.ok()) return {};
  return double((sys_days{date} - kDayZero).count());
}

std::string DateToText(double serial) {
  // The fraction counts forward from midnight also before day zero.
  double days = std::trunc(serial);
  int seconds = static_cast<int>(std::lround(std::fabs(serial - days) * kSecondsPerDay));
  if (seconds == kSecondsPerDay) {
    seconds = 0;
    days += 1;
  }
  if (days == 0) return TimeText(seconds);
  const year_month_day date{kDayZero + std::chrono::days{static_cast<int>(days)}};
  std::string text = platform::Current().Locale().FormatShortDate(
      static_cast<int>(unsigned{date.day()}), static_cast<int>(unsigned{date.month()}),
      int{date.year()});
  return seconds == 0 ? text : text + " " + TimeText(seconds);
}

std::optional<double> TextToDate(std::string_view text) {
  text = platform::Trim(text);
  if (text.empty()) return {};
  for (const std::string_view format :
       {std::string_view{"yyyy-MM-dd"},
        std::string_view{platform::Current().Locale().shortDateFormat}}) {
    if (const auto serial = ReadDateAndTime(text, format)) return serial;
  }
  std::size_t position = 0;
  const auto time = TakeTime(text, position);
  return position == text.size() ? time : std::nullopt;
}

}  // namespace ZAFHartTypes
