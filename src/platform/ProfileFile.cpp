#include "platform/ProfileFile.h"

#include <system_error>

#include "platform/AsciiText.h"
#include "platform/Failure.h"
#include "platform/IniLine.h"
#include "platform/TextFile.h"

namespace platform::profile {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool HoldsAny(std::string_view text, std::string_view characters) {
  return text.find_first_of(characters) != std::string_view::npos;
}

bool CanStandInFile(std::string_view section, std::string_view key, std::string_view value) {
  using namespace std::string_view_literals;
  constexpr auto kLineEnds = "\r\n\0"sv;
  return !key.empty() && key.front() != ';' && key.front() != '[' && !HoldsAny(key, "=") &&
         !HoldsAny(section, "]") && !HoldsAny(section, kLineEnds) && !HoldsAny(key, kLineEnds) &&
         !HoldsAny(value, kLineEnds);
}

// Calls `visit` with each entry of the first section of that name until it returns false.
template <typename Visit>
void VisitEntries(std::string_view file, std::string_view section, Visit visit) {
  section = Trim(section);
  TextReader reader(SystemPath(file));
  bool inside = false;
  while (const auto line = reader.ReadLine()) {
    const IniLine parsed = ParseIniLine(*line);
    if (parsed.kind == IniLine::Kind::Section) {
      if (inside) return;
      inside = EqualsNoCase(parsed.name, section);
    } else if (inside && parsed.kind == IniLine::Kind::Entry && !visit(parsed)) {
      return;
    }
  }
}

// At most `length` bytes, without cutting a character apart.
void CutTo(std::string& text, std::size_t length) {
  if (text.size() <= length) return;
  while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) --length;
  text.resize(length);
}

std::string ContentOf(const std::filesystem::path& file) {
  std::error_code error;
  return std::filesystem::exists(file, error) ? ReadWholeFile(file) : std::string();
}

// Where in a file's content a key is written.
struct Place {
  bool sectionFound = false;
  std::size_t valueStart = std::string::npos;  // npos: the key is absent
  std::size_t valueLength = 0;
  std::size_t insertAt = std::string::npos;  // behind the section's last line that says something
};

Place FindPlace(std::string_view content, std::string_view section, std::string_view key) {
  Place place;
  std::size_t next = 0;
  for (std::size_t start = content.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
       start < content.size(); start = next) {
    const std::size_t end = std::min(content.find('\n', start), content.size());
    next = std::min(end + 1, content.size());
    std::string_view line = content.substr(start, end - start);
    if (line.ends_with('\r')) line.remove_suffix(1);
    const IniLine parsed = ParseIniLine(line);
    if (parsed.kind == IniLine::Kind::Section) {
      if (place.sectionFound) break;
      place.sectionFound = EqualsNoCase(parsed.name, section);
    }
    if (!place.sectionFound) continue;
    if (parsed.kind == IniLine::Kind::Entry && EqualsNoCase(parsed.name, key)) {
      const std::size_t value = line.find('=') + 1;
      place.valueStart = start + value;
      place.valueLength = line.size() - value;
      break;
    }
    if (parsed.kind != IniLine::Kind::Blank) place.insertAt = next;
  }
  return place;
}

std::string WithKey(std::string content, std::string_view section, std::string_view key,
                    std::string_view value) {
  const Place place = FindPlace(content, section, key);
  if (place.valueStart != std::string::npos) {
    return content.replace(place.valueStart, place.valueLength, value);
  }
  const std::string lineEnd = content.find("\r\n") != std::string::npos ? "\r\n" : "\n";
  const std::size_t at = place.sectionFound ? place.insertAt : content.size();
  std::string added;
  if (at > 0 && content[at - 1] != '\n') added += lineEnd;
  if (!place.sectionFound) added.append("[").append(section).append("]").append(lineEnd);
  added.append(key).append("=").append(value).append(lineEnd);
  return content.insert(at, added);
}

}  // namespace

std::string ReadSection(std::string_view file, std::string_view section) {
  std::string listing;
  IgnoreFailures([&] {
    VisitEntries(file, section, [&](const IniLine& entry) {
      listing.append(entry.name).append("=").append(entry.value).push_back('\0');
      return true;
    });
  });
  return listing;
}

std::string ReadKey(std::string_view file, std::string_view section, std::string_view key,
                    std::string_view defaultText, std::size_t maxLength) {
  std::string text(defaultText.substr(0, defaultText.find_last_not_of(' ') + 1));
  IgnoreFailures([&] {
    VisitEntries(file, section, [&](const IniLine& entry) {
      if (!EqualsNoCase(entry.name, Trim(key))) return true;
      text = Unquote(entry.value);
      return false;
    });
  });
  CutTo(text, maxLength);
  return text;
}

bool WriteKey(std::string_view file, std::string_view section, std::string_view key,
              std::string_view value) {
  section = Trim(section);
  key = Trim(key);
  if (!CanStandInFile(section, key, value)) return false;
  return IgnoreFailures([&] {
    const std::filesystem::path path = SystemPath(file);
    WriteFileAtomically(path, WithKey(ContentOf(path), section, key, value));
  });
}

}  // namespace platform::profile
