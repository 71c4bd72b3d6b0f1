#include "hart/DateText.h"

#include <charconv>
#include <chrono>
#include <cstdio>

namespace ZAFHartTypes::hart {
namespace {

using std::chrono::year_month_day;

constexpr int kFirstYear = 1900;
constexpr int kLastYear = kFirstYear + 255;

year_month_day MakeDate(int year, unsigned month, unsigned day) {
  return {std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{day}};
}

std::optional<unsigned> Digits(std::string_view text) {
  unsigned number = 0;
  const char* const last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, number);
  if (error != std::errc{} || end != last) return std::nullopt;
  return number;
}

}  // namespace

std::optional<std::string> DateToText(std::uint32_t date) {
  const unsigned day = (date >> 16) & 0xFF;
  const unsigned month = (date >> 8) & 0xFF;
  const int year = kFirstYear + static_cast<int>(date & 0xFF);
  if (date >> 24 != 0 || !MakeDate(year, month, day).ok()) return std::nullopt;
  char text[sizeof "yyyy-mm-dd"];
  std::snprintf(text, sizeof text, "%04d-%02u-%02u", year % 10000, month % 100, day % 100);
  return text;
}

std::optional<std::uint32_t> DateFromText(std::string_view text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  const auto year = Digits(text.substr(0, 4));
  const auto month = Digits(text.substr(5, 2));
  const auto day = Digits(text.substr(8, 2));
  if (!year || !month || !day || *year < kFirstYear || *year > kLastYear) return std::nullopt;
  if (!MakeDate(static_cast<int>(*year), *month, *day).ok()) return std::nullopt;
  return (*day << 16) | (*month << 8) | (*year - kFirstYear);
}

}  // namespace ZAFHartTypes::hart
