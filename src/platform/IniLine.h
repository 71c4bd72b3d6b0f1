#pragma once

#include <string_view>

namespace platform {

// One line of an INI file, taken apart. The views point into the line.
struct IniLine {
  enum class Kind {
    Blank,
    Comment,  // starts with ";"
    Section,  // "[name]"; `value` is what follows the bracket
    Entry,    // "name=value"
    Other,
  };
  Kind kind = Kind::Blank;
  std::string_view name;   // trimmed
  std::string_view value;  // trimmed
};

// `line` comes without its line end.
IniLine ParseIniLine(std::string_view line);

// Takes one pair of single or double quotes off.
std::string_view Unquote(std::string_view text);

}  // namespace platform
