#pragma once

#include "platform/ComponentClasses.h"
#include "platform/Export.h"

namespace HartLinks {

// Makes the links to real devices known by their class names, beside the library's own classes. A
// host calls it once for the platform of each thread that it runs DTMs on.
ZAF_API void RegisterLinkClasses(platform::ComponentClasses& classes);

}  // namespace HartLinks
