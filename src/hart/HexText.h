#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "hart/Numbers.h"
#include "platform/Export.h"

namespace ZAFHartTypes::hart {

// Two capital hexadecimal digits per byte, nothing between them ("0040FE").
ZAF_API std::string ToHex(Bytes bytes);
// The bytes of such a text; small digits and blanks between bytes are taken as well. Raises
// InvalidArgument naming the place for any other text.
ZAF_API std::vector<std::uint8_t> FromHex(std::string_view text);

}  // namespace ZAFHartTypes::hart
