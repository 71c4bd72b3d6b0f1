#pragma once

#include <string_view>

namespace ZAFHartTypes {

// The text holds * (any characters) or ? (one character).
bool IsPattern(std::string_view text);
// Without regard to letter case.
bool MatchesPattern(std::string_view name, std::string_view pattern);

}  // namespace ZAFHartTypes
