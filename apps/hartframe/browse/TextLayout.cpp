#include "hartframe/browse/TextLayout.h"

#include "hartframe/Speech.h"
#include "types/Utf8.h"

namespace hartframe::browse {

namespace utf8 = ZAFHartTypes::utf8;

namespace {

// The part of the line that fits, up to its last blank if there is one.
std::string_view FirstPart(std::string_view line, std::size_t width) {
  if (utf8::Length(line) <= width) return line;
  const std::string_view fitting = utf8::Prefix(line, width);
  if (line[fitting.size()] == ' ') return fitting;
  const auto blank = fitting.rfind(' ');
  if (blank == std::string_view::npos || blank == 0) return fitting;
  return fitting.substr(0, blank);
}

void Append(std::string_view line, std::size_t width, std::vector<std::string>& lines) {
  do {
    const std::string_view part = FirstPart(line, width);
    lines.emplace_back(part);
    line.remove_prefix(part.size());
    if (line.starts_with(' ')) line.remove_prefix(1);
  } while (!line.empty());
}

}  // namespace

std::string Fitted(std::string_view text, std::size_t width) {
  const std::size_t length = utf8::Length(text);
  if (length <= width) return std::string(text) + std::string(width - length, ' ');
  if (width == 0) return {};
  return std::string(utf8::Prefix(text, width - 1)) + "…";
}

std::vector<std::string> Wrapped(std::string_view text, std::size_t width) {
  std::vector<std::string> lines;
  if (text.empty() || width == 0) return lines;
  while (true) {
    const auto end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    Append(OneLine(line), width, lines);
    if (end == std::string_view::npos) return lines;
    text.remove_prefix(end + 1);
  }
}

std::string Joined(const std::vector<std::string>& parts, std::string_view between) {
  std::string text;
  for (const std::string& part : parts) {
    if (part.empty()) continue;
    if (!text.empty()) text += between;
    text += part;
  }
  return text;
}

}  // namespace hartframe::browse
