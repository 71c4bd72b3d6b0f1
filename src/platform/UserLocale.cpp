#include "platform/UserLocale.h"

#include <langinfo.h>
#include <locale.h>  // NOLINT(modernize-deprecated-headers): POSIX, newlocale

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace platform {

namespace {

// Longer names first: they are tried in this order.
constexpr std::array<std::string_view, 6> kDateParts{"dd", "d", "MM", "M", "yyyy", "yy"};

std::string Digits(int value, std::size_t width) {
  char text[16];
  std::snprintf(text, sizeof text, "%0*d", static_cast<int>(width), value);
  return text;
}

std::string DatePart(std::string_view name, int day, int month, int year) {
  switch (name.front()) {
    case 'd':
      return Digits(day, name.size());
    case 'M':
      return Digits(month, name.size());
    default:
      return Digits(name.size() == 2 ? year % 100 : year, name.size());
  }
}

// The date part that a conversion of strftime writes; empty for other conversions.
std::string_view DatePartOf(char conversion, bool unpadded) {
  switch (conversion) {
    case 'd':
      return unpadded ? "d" : "dd";
    case 'e':
      return "d";
    case 'm':
      return unpadded ? "M" : "MM";
    case 'y':
      return "yy";
    case 'Y':
      return "yyyy";
    case 'D':
      return "MM/dd/yy";
    case 'F':
      return "yyyy-MM-dd";
    default:
      return {};
  }
}

// What the process environment names for a category.
std::string LocaleName(const char* category) {
  for (const char* variable : {"LC_ALL", category, "LANG"}) {
    const char* name = std::getenv(variable);
    if (name && *name) return name;
  }
  return "C";
}

// An object of its own: the process-wide locale belongs to the host.
class LocaleObject {
 public:
  LocaleObject(int mask, const std::string& name) {
    const bool neutral = name == "C" || name == "POSIX" || name.starts_with("C.");
    if (!neutral) locale_ = newlocale(mask | LC_CTYPE_MASK, name.c_str(), locale_t{});
  }
  ~LocaleObject() {
    if (locale_) freelocale(locale_);
  }
  LocaleObject(const LocaleObject&) = delete;
  LocaleObject& operator=(const LocaleObject&) = delete;

  // Empty for the neutral locale, for one that the system does not have, and for a text that is
  // not in UTF-8.
  std::string Text(nl_item item) const {
    if (!locale_) return {};
    std::string text = nl_langinfo_l(item, locale_);
    const bool ascii =
        std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
    return ascii || nl_langinfo_l(CODESET, locale_) == std::string_view("UTF-8") ? text : "";
  }

 private:
  locale_t locale_{};
};

}  // namespace

std::string UserLocale::FormatShortDate(int day, int month, int year) const {
  std::string text;
  for (std::string_view rest = shortDateFormat; !rest.empty();) {
    const auto part = std::find_if(kDateParts.begin(), kDateParts.end(),
                                   [&](std::string_view name) { return rest.starts_with(name); });
    if (part == kDateParts.end()) {
      text += rest.front();
      rest.remove_prefix(1);
    } else {
      text += DatePart(*part, day, month, year);
      rest.remove_prefix(part->size());
    }
  }
  return text;
}

std::string ShortDateFormatOf(std::string_view strftimeFormat) {
  std::string format;
  for (std::size_t i = 0; i < strftimeFormat.size(); ++i) {
    const char c = strftimeFormat[i];
    if (c != '%') {
      if (std::string_view("dMy").find(c) != std::string_view::npos) return {};
      format += c;
      continue;
    }
    const std::size_t conversion = strftimeFormat.find_first_not_of("-_0EO", i + 1);
    if (conversion == std::string_view::npos) return {};
    const bool unpadded = strftimeFormat.substr(i, conversion - i).find('-') != std::string::npos;
    const std::string_view part = DatePartOf(strftimeFormat[conversion], unpadded);
    if (part.empty()) return {};
    format += part;
    i = conversion;
  }
  return format;
}

UserLocale UserLocale::FromEnvironment() {
  UserLocale result;
  const std::string separator =
      LocaleObject(LC_NUMERIC_MASK, LocaleName("LC_NUMERIC")).Text(RADIXCHAR);
  if (!separator.empty()) result.decimalSeparator = separator;
  const std::string date =
      ShortDateFormatOf(LocaleObject(LC_TIME_MASK, LocaleName("LC_TIME")).Text(D_FMT));
  if (!date.empty()) result.shortDateFormat = date;
  return result;
}

}  // namespace platform
