#include "linksim/DeviceFile.h"

#include <algorithm>
#include <charconv>

#include "platform/AsciiText.h"
#include "platform/IniLine.h"
#include "platform/TextFile.h"
#include "types/Failure.h"
#include "types/TextKey.h"

namespace HartLinkSim {

using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Failure;
using ZAFHartTypes::SameKey;

namespace {

struct Escape {
  char character;
  char letter;
};
constexpr Escape kEscapes[] = {{'\\', '\\'}, {'"', '"'}, {'\n', 'n'}, {'\r', 'r'}, {'\t', 't'}};

bool IsControl(char character) {
  return static_cast<unsigned char>(character) < ' ' || character == '\x7F';
}

bool NeedsQuotes(std::string_view value) {
  return value != platform::Trim(value) || value.starts_with('"') ||
         std::any_of(value.begin(), value.end(), IsControl);
}

void AppendEscaped(std::string& text, char character) {
  for (const Escape& escape : kEscapes) {
    if (character != escape.character) continue;
    text += {'\\', escape.letter};
    return;
  }
  if (!IsControl(character)) {
    text += character;
    return;
  }
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  const auto code = static_cast<unsigned char>(character);
  text += {'\\', 'x', kDigits[code >> 4], kDigits[code & 0xF]};
}

std::string Quoted(std::string_view value) {
  if (!NeedsQuotes(value)) return std::string(value);
  std::string text = "\"";
  for (const char character : value) AppendEscaped(text, character);
  return text += '"';
}

// Reads the escape behind a backslash off the front of `rest`; false when it is none.
bool TakeEscape(std::string_view& rest, std::string& text) {
  if (rest.empty()) return false;
  const char letter = rest.front();
  rest.remove_prefix(1);
  for (const Escape& escape : kEscapes) {
    if (letter != escape.letter) continue;
    text += escape.character;
    return true;
  }
  unsigned char code = 0;
  const std::string_view digits = rest.substr(0, 2);
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
  if (letter != 'x' || error != std::errc{} || end != digits.data() + 2) return false;
  text += static_cast<char>(code);
  rest.remove_prefix(2);
  return true;
}

}  // namespace

DeviceFile::DeviceFile(std::filesystem::path file) : file_(std::move(file)) {
  if (!std::filesystem::exists(file_)) return;
  platform::TextReader reader(file_);
  std::string section;
  while (auto text = reader.ReadLine()) {
    lines_.push_back(Parse(*std::move(text), section, lines_.size() + 1));
    section = lines_.back().section;
  }
}

DeviceFile::Line DeviceFile::Parse(std::string text, const std::string& section,
                                   std::size_t number) const {
  // One carriage return would go with every reading.
  while (text.ends_with('\r')) text.pop_back();
  using Kind = platform::IniLine::Kind;
  const platform::IniLine parts = platform::ParseIniLine(text);
  Line line{"", section, "", ""};
  if (parts.kind == Kind::Section) {
    line.section = ParseSection(parts.name, number);
  } else if (parts.kind == Kind::Entry && !parts.name.empty()) {
    line.name = parts.name;
    RequireFree(line, number);
    line.value = Unquoted(parts.value, number);
  } else if (parts.kind == Kind::Entry || parts.kind == Kind::Other) {
    RaiseAt(number, "it is no section, no comment and no name=value");
  }
  line.text = std::move(text);
  return line;
}

void DeviceFile::RequireFree(const Line& line, std::size_t number) const {
  if (line.section.empty()) RaiseAt(number, "it stands before the first section");
  for (const Line& other : lines_) {
    if (other.section == line.section && SameKey(other.name, line.name)) {
      RaiseAt(number, "\"" + line.name + "\" stands in section [" + line.section + "] already");
    }
  }
}

std::string DeviceFile::ParseSection(std::string_view text, std::size_t number) const {
  for (const std::string_view known : {kDeviceSection, kStatusSection}) {
    if (platform::EqualsNoCase(text, known)) return std::string(known);
  }
  RaiseAt(number, "the section [" + std::string(text) + "] is unknown; there are [" +
                      std::string(kDeviceSection) + "] and [" + std::string(kStatusSection) + "]");
}

std::string DeviceFile::Unquoted(std::string_view text, std::size_t number) const {
  if (!text.starts_with('"')) return std::string(text);
  std::string value;
  std::string_view rest = text.substr(1);
  while (!rest.empty() && rest.front() != '"') {
    const char character = rest.front();
    rest.remove_prefix(1);
    if (character != '\\') {
      value += character;
    } else if (!TakeEscape(rest, value)) {
      RaiseAt(number, "a \"\\\" in quotes is followed by \\, \", n, r, t or x and two digits");
    }
  }
  if (rest != "\"") RaiseAt(number, "the quoted text does not end with the line");
  return value;
}

std::vector<DeviceFile::Entry> DeviceFile::Entries() const {
  std::vector<Entry> entries;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const Line& line = lines_[i];
    if (!line.name.empty()) entries.push_back({line.section, line.name, line.value, i + 1});
  }
  return entries;
}

void DeviceFile::Set(std::string_view section, std::string_view name, std::string_view value) {
  const auto found = std::find_if(lines_.begin(), lines_.end(), [&](const Line& line) {
    return line.section == section && !line.name.empty() && SameKey(line.name, name);
  });
  std::string text = std::string(name) + "=" + Quoted(value);
  if (found != lines_.end()) {
    if (found->value == value) return;
    *found =
        Line{found->name + "=" + Quoted(value), found->section, found->name, std::string(value)};
    return;
  }
  const auto place = static_cast<std::ptrdiff_t>(EndOfSection(section));
  lines_.insert(lines_.begin() + place,
                Line{std::move(text), std::string(section), std::string(name), std::string(value)});
}

// The number of lines up to the section's last name=value, or its heading; the section is added
// when it is not there.
std::size_t DeviceFile::EndOfSection(std::string_view section) {
  std::size_t end = 0;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const Line& line = lines_[i];
    const bool isHeading = platform::Trim(line.text).starts_with('[');
    if (line.section == section && (isHeading || !line.name.empty())) end = i + 1;
  }
  if (end > 0) return end;
  lines_.push_back(Line{"[" + std::string(section) + "]", std::string(section), "", ""});
  return lines_.size();
}

void DeviceFile::Save() const {
  std::string content;
  for (const Line& line : lines_) content.append(line.text).append("\n");
  platform::WriteFileAtomically(file_, content);
}

void DeviceFile::RequireName(std::string_view name) {
  const bool isName = !name.empty() && name == platform::Trim(name) && name.front() != ';' &&
                      name.front() != '[' && name.find('=') == std::string_view::npos &&
                      std::none_of(name.begin(), name.end(), IsControl);
  if (isName) return;
  throw Failure(ErrorNumber::InvalidArgument, "HartLinkSim.DeviceFile",
                "\"" + std::string(name) + "\" is no name of a variable.");
}

void DeviceFile::RaiseAt(std::size_t line, const std::string& reason) const {
  throw Failure(ErrorNumber::InvalidArgument, "HartLinkSim.DeviceFile",
                "Line " + std::to_string(line) + " of \"" + file_.string() +
                    "\" cannot be read: " + reason + ".");
}

}  // namespace HartLinkSim
