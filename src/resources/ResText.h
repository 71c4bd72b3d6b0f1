#pragma once

#include <cstdint>
#include <string>

namespace ZAFHartLib {

// The text of a string resource (see enumDDResourceIDs), all languages in one string; LangText
// picks one. "" for an unknown number. The reference is good for ever.
const std::string& ResText(std::int32_t id);

}  // namespace ZAFHartLib
