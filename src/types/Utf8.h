#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// Code points of UTF-8 text. Broken bytes never stop anything: each counts as one code point
// U+FFFD.
namespace ZAFHartTypes::utf8 {

inline constexpr char32_t kReplacement = 0xFFFD;

// Reads the code point at `position` and moves `position` behind it. `position` < text.size().
char32_t Next(std::string_view text, std::size_t& position);
void Append(std::string& text, char32_t codePoint);

std::size_t Length(std::string_view text);
// The first `count` code points.
std::string_view Prefix(std::string_view text, std::size_t count);
bool IsValid(std::string_view text);
// The text with every broken byte replaced by U+FFFD.
std::string Repaired(std::string_view text);
// What can be shown in one line of a terminal: control characters become blanks, broken bytes
// U+FFFD.
std::string OneLine(std::string_view text);

// Latin-1 as HART devices store it; a code point that Latin-1 lacks becomes '?'.
std::string ToLatin1(std::string_view text);
std::string FromLatin1(std::string_view bytes);

}  // namespace ZAFHartTypes::utf8
