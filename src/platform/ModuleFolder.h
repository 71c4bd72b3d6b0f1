#pragma once

#include <filesystem>

#include "platform/Export.h"

namespace platform {

// Full path of the folder of the program or shared library that holds the code or datum at
// `address`; empty when that cannot be told. `address` is one inside the asking module.
ZAF_API std::filesystem::path ModuleFolder(const void* address);

}  // namespace platform
