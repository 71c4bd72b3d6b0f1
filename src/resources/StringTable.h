#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace ZAFHartLib {

struct StringResource {
  std::int32_t id;
  std::string_view text;  // multilingual: English, then "|de|", "|fr|", "|it|", "|es|", "|kt|"
};

// The library's texts by ascending id.
std::span<const StringResource> StringTable();

}  // namespace ZAFHartLib
