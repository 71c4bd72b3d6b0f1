#pragma once

#include <string_view>

#include "platform/Export.h"

namespace ZAFHartTypes {

// The text holds * (any characters) or ? (one character).
ZAF_API bool IsPattern(std::string_view text);
// The whole name is matched, without regard to letter case. A "?" is one byte, hence one ASCII
// character.
ZAF_API bool MatchesPattern(std::string_view name, std::string_view pattern);

}  // namespace ZAFHartTypes
