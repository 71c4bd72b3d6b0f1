#include "platform/IniLine.h"

#include "platform/AsciiText.h"

namespace platform {

IniLine ParseIniLine(std::string_view line) {
  using Kind = IniLine::Kind;
  const std::string_view text = Trim(line);
  if (text.empty()) return {};
  if (text.front() == ';') return {.kind = Kind::Comment, .name = {}, .value = text};
  const bool bracket = text.front() == '[';
  const std::size_t separator = text.find(bracket ? ']' : '=');
  if (separator == std::string_view::npos) return {.kind = Kind::Other, .name = text, .value = {}};
  const std::size_t start = bracket ? 1 : 0;
  return {.kind = bracket ? Kind::Section : Kind::Entry,
          .name = Trim(text.substr(start, separator - start)),
          .value = Trim(text.substr(separator + 1))};
}

std::string_view Unquote(std::string_view text) {
  const bool quoted = text.size() >= 2 && text.front() == text.back() &&
                      (text.front() == '"' || text.front() == '\'');
  return quoted ? text.substr(1, text.size() - 2) : text;
}

}  // namespace platform
