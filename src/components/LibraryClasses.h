#pragma once

#include "platform/ComponentClasses.h"
#include "platform/Export.h"

namespace ZAFHartLib {

// Makes the library's creatable classes known by their names: "ZAFHartLib.CHARTKernel",
// "ZAFHartLib.CDDTestCommWrapper", "HartLinkSim.EchoLink" and so on. A host calls it once for the
// platform of each thread that it runs DTMs on.
ZAF_API void RegisterLibraryClasses(platform::ComponentClasses& classes);

}  // namespace ZAFHartLib
