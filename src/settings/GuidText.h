#pragma once

#include <string>

#include "platform/Guid.h"

namespace ZAFHartLib {

// Makes a new GUID; false, and `guid` stays, when the system's random source fails.
bool NewGuid(platform::Guid& guid);

// The registry form, with braces.
std::string GuidText(const platform::Guid& guid);

// A new GUID in registry form, without the braces unless they are to be kept; "" when none could be
// made.
std::string NewGuidText(bool keepBraces);

}  // namespace ZAFHartLib
