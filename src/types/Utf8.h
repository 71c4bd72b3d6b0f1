#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/Export.h"

// Code points of UTF-8 text. Broken bytes never stop anything: each counts as one code point
// U+FFFD.
namespace ZAFHartTypes::utf8 {

// Stands for what is no character.
inline constexpr char32_t kReplacement = 0xFFFD;

// Reads the code point at `position` and moves `position` behind it. `position` < text.size().
ZAF_API char32_t Next(std::string_view text, std::size_t& position);
// One that is no character (a surrogate, or beyond 0x10FFFF) is appended as U+FFFD.
ZAF_API void Append(std::string& text, char32_t codePoint);

// Number of code points.
ZAF_API std::size_t Length(std::string_view text);
// The first `count` code points, the whole text when it has no more; a view into it.
ZAF_API std::string_view Prefix(std::string_view text, std::size_t count);
// There are no broken bytes in it.
ZAF_API bool IsValid(std::string_view text);
// The text with every broken byte replaced by U+FFFD.
ZAF_API std::string Repaired(std::string_view text);
// What can be shown in one line of a terminal: control characters become blanks, broken bytes
// U+FFFD.
ZAF_API std::string OneLine(std::string_view text);

// Latin-1 as HART devices store it, one byte per code point. One that Latin-1 lacks becomes '?',
// a broken byte too; the way back takes every byte.
ZAF_API std::string ToLatin1(std::string_view text);
ZAF_API std::string FromLatin1(std::string_view bytes);

}  // namespace ZAFHartTypes::utf8
