#pragma once

#include <string>
#include <string_view>

#include "platform/Export.h"

namespace platform {

// Letter case and blanks of ASCII text: names of classes, registry keys and INI keys.
// In lower case; other characters stay.
ZAF_API std::string FoldAscii(std::string_view text);
ZAF_API bool EqualsNoCase(std::string_view left, std::string_view right);
// Without the blanks and tabs at both ends.
ZAF_API std::string_view Trim(std::string_view text);

}  // namespace platform
