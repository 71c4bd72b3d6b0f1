#pragma once

#include <string_view>

namespace hartframe {

// One of the languages of a multilingual text says just that, without regard to letter case.
bool HasSegment(std::string_view multilingual, std::string_view text);

}  // namespace hartframe
