#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ZAFHartTypes::hart {

// A HART date is three bytes, most significant first: day, month, year - 1900.
inline constexpr std::size_t kDateSize = 3;

// "yyyy-mm-dd" of the three low bytes; nothing when they form no date.
std::optional<std::string> DateToText(std::uint32_t date);
// The three bytes of a "yyyy-mm-dd" from 1900 to 2155; nothing for other texts.
std::optional<std::uint32_t> DateFromText(std::string_view text);

}  // namespace ZAFHartTypes::hart
