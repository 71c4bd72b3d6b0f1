#pragma once

#include <string>
#include <string_view>

namespace hartframe {

// A text as one line of a file: "\n", "\r" and "\\" stand for the characters.
std::string Escaped(std::string_view text);
std::string Unescaped(std::string_view text);

}  // namespace hartframe
