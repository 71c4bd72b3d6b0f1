#pragma once

#include "platform/Failure.h"

namespace ZAFHartTypes {

using platform::ErrorNumber;
using platform::Failure;
using platform::IgnoreFailures;

// Text of a wrong argument that is a DD object of another kind.
inline constexpr const char* kWrongKind = "The Object has the wrong kind for that action!";

}  // namespace ZAFHartTypes
