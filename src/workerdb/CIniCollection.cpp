#include "workerdb/CIniCollection.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "platform/Platform.h"
#include "platform/ProfileFile.h"
#include "types/Failure.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::Date;
using ZAFHartTypes::IgnoreFailures;
using ZAFHartTypes::KeyedList;
using ZAFHartTypes::TextKey;
using ZAFHartTypes::Variant;
using ZAFHartTypes::VariantType;

constexpr std::string_view kTypeSuffix = ".TYPE";
constexpr std::string_view kValueSuffix = ".Value";
constexpr std::size_t kMostRead = 255;  // bytes of one entry
constexpr double kFirstOfJanuary2000 = 36526;

std::string Joined(std::string_view name, std::string_view suffix) {
  return std::string(name).append(suffix);
}

std::string_view UpToNul(std::string_view text) {
  return text.substr(0, text.find('\0'));
}

// Empty for a text that is no positive number.
VariantType ParseType(std::string_view text) {
  std::int32_t code = 0;
  std::from_chars(text.data(), text.data() + text.size(), code);
  return code > 0 && code <= UINT16_MAX ? static_cast<VariantType>(code) : VariantType::Empty;
}

Variant DefaultOf(VariantType type) {
  switch (type) {
    case VariantType::Date:
      return Date{kFirstOfJanuary2000};
    case VariantType::Int16:
    case VariantType::Int32:
    case VariantType::Single:
    case VariantType::Double:
    case VariantType::Currency:
    case VariantType::Decimal:
    case VariantType::Byte:
      return std::int16_t{0};
    case VariantType::String:
      return "";
    case VariantType::Boolean:
      return false;
    default:
      return {};
  }
}

Variant ConvertTo(VariantType type, const Variant& text) {
  switch (type) {
    case VariantType::Int16:
      return text.ToShort();
    case VariantType::Int32:
      return text.ToLong();
    case VariantType::Single:
    case VariantType::Decimal:
      return text.ToSingle();
    case VariantType::Double:
      return text.ToDouble();
    case VariantType::Currency:
      return text.ToCurrency();
    case VariantType::Date:
      return Variant(text.ToDouble()).ToDate();
    case VariantType::String:
      return text;
    case VariantType::Boolean:
      return text.ToBoolean();
    case VariantType::Byte:
      return text.ToByte();
    default:
      return {};
  }
}

// Name of the value that a line "name.TYPE=…" or "name.Value=…" belongs to.
std::string_view NameOf(std::string_view entry) {
  const std::size_t end = entry.find('.');
  return end == 0 ? entry : entry.substr(0, end);
}

// The text behind the first "key=" in a section listing.
std::optional<std::string_view> FindText(std::string_view listing, std::string_view name,
                                         std::string_view suffix) {
  const std::string key = Joined(name, suffix) + "=";
  const std::size_t start = listing.find(key);
  if (start == std::string_view::npos) return {};
  return UpToNul(listing.substr(start + key.size()));
}

}  // namespace

CIniCollection::CIniCollection()
    : pointIsDecimal_(platform::Current().Locale().decimalSeparator == ".") {}

std::string CIniCollection::ApplicationToInifileName(std::string_view applicationFileName) const {
  const std::size_t folderEnd = applicationFileName.find_last_of("\\/") + 1;  // 0 without a folder
  const std::string_view file = applicationFileName.substr(folderEnd);
  if (file.empty()) return Joined(applicationFileName, "$$$.ini");
  const std::size_t extension = file.rfind('.');
  const std::size_t baseEnd = extension == std::string_view::npos ? file.size() : extension;
  return Joined(applicationFileName.substr(0, folderEnd + baseEnd), ".ini");
}

bool CIniCollection::WriteIniFileTypedEntry(std::string_view filename, std::string_view key,
                                            std::string_view name, const Variant& value) const {
  bool written = false;
  IgnoreFailures([&] {
    const VariantType type = value.Type();
    const std::string text =
        type == VariantType::Date ? Variant(value.ToDouble()).ToText() : value.ToText();
    const std::string typeText = std::to_string(static_cast<int>(type));
    platform::profile::WriteKey(filename, key, Joined(name, kTypeSuffix), typeText);
    written = platform::profile::WriteKey(filename, key, Joined(name, kValueSuffix), text);
  });
  return written;
}

bool CIniCollection::ReadIniFileTypedEntry(std::string_view filename, std::string_view key,
                                           std::string_view name, Variant& value) const {
  const auto read = [&](std::string_view suffix, std::string_view defaultText) {
    return std::string(UpToNul(
        platform::profile::ReadKey(filename, key, Joined(name, suffix), defaultText, kMostRead)));
  };
  value = {};
  bool found = false;
  IgnoreFailures([&] {
    const VariantType type = ParseType(read(kTypeSuffix, "-1"));
    std::string text = read(kValueSuffix, "");
    found = !text.empty();
    value = Convert(type, std::move(text));
  });
  return found;
}

bool CIniCollection::ReadIniFile(std::string_view filename, std::string_view key,
                                 KeyedList<Variant>& values) const {
  values.Clear();
  return IgnoreFailures([&] {
    const std::string listing = platform::profile::ReadSection(filename, key);
    std::string_view previous;
    std::size_t start = 0;
    while (start < listing.size()) {
      const std::string_view entry = UpToNul(std::string_view(listing).substr(start));
      start += entry.size() + 1;
      const std::string_view name = NameOf(entry);
      if (name.empty() || name == previous) continue;
      previous = name;
      if (values.Contains(TextKey::Of(name))) continue;
      const auto type = FindText(listing, name, kTypeSuffix);
      const auto text = FindText(listing, name, kValueSuffix);
      if (!text) continue;
      values.Add(TextKey::Of(name), Convert(ParseType(type.value_or("")), std::string(*text)));
    }
  });
}

Variant CIniCollection::Convert(VariantType type, std::string text) const {
  if (text.empty()) return DefaultOf(type);
  const bool isFloating =
      type == VariantType::Single || type == VariantType::Double || type == VariantType::Decimal;
  if (isFloating && pointIsDecimal_) std::ranges::replace(text, ',', '.');
  Variant value;
  IgnoreFailures([&] { value = ConvertTo(type, Variant(text)); });
  return value;
}

}  // namespace ZAFHartLib
