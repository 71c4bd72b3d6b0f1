#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/Export.h"

// Code points of UTF-8 text. Broken bytes never stop anything: each counts as one code point
// U+FFFD.
namespace ZAFHartTypes::utf8 {

inline constexpr char32_t kReplacement = 0xFFFD;

// Reads the code point at `position` and moves `position` behind it. `position` < text.size().
ZAF_API char32_t Next(std::string_view text, std::size_t& position);
ZAF_API void Append(std::string& text, char32_t codePoint);

ZAF_API std::size_t Length(std::string_view text);
// The first `count` code points.
ZAF_API std::string_view Prefix(std::string_view text, std::size_t count);
ZAF_API bool IsValid(std::string_view text);
// The text with every broken byte replaced by U+FFFD.
ZAF_API std::string Repaired(std::string_view text);
// What can be shown in one line of a terminal: control characters become blanks, broken bytes
// U+FFFD.
ZAF_API std::string OneLine(std::string_view text);

// Latin-1 as HART devices store it; a code point that Latin-1 lacks becomes '?'.
ZAF_API std::string ToLatin1(std::string_view text);
ZAF_API std::string FromLatin1(std::string_view bytes);

}  // namespace ZAFHartTypes::utf8
