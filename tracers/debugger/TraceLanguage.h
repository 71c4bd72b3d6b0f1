#pragma once

#include <string>
#include <string_view>

namespace ZAFHartDebugger {

// A line of a trace with its multilingual texts in one language. Such a text begins behind the "="
// or ": " of its tag and ends with the line, or where the state of its variable begins.
std::string InLanguage(std::string_view line, std::string_view language);

}  // namespace ZAFHartDebugger
