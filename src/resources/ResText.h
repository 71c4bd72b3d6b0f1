#pragma once

#include <cstdint>
#include <string>

#include "platform/Export.h"

namespace ZAFHartLib {

// The text of a string resource (see enumDDResourceIDs), all languages in one string; LangText
// picks one. "" for an unknown number. The reference is good for ever.
ZAF_API const std::string& ResText(std::int32_t id);

}  // namespace ZAFHartLib
