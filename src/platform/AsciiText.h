#pragma once

#include <string>
#include <string_view>

namespace platform {

// Letter case and blanks of ASCII text: names of classes, registry keys and INI keys.
std::string FoldAscii(std::string_view text);
bool EqualsNoCase(std::string_view left, std::string_view right);
// Without the blanks and tabs at both ends.
std::string_view Trim(std::string_view text);

}  // namespace platform
