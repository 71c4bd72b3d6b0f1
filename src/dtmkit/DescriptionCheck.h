#pragma once

#include "dtmkit/Catalogue.h"
#include "platform/Export.h"

namespace ZAFHartTypes::dtmkit {

// Raises InvalidArgument, one line for each mistake, when the description contradicts itself: an
// item names another that is not described, or is of another kind; a variable has no type, a size
// that its type cannot have on the wire, an enumeration value beyond its size, or a default that it
// does not accept. Items of the library ("__ZAF__…") and what a computation may change are left
// out.
ZAF_API void RequireConsistent(const Catalogue& catalogue);

}  // namespace ZAFHartTypes::dtmkit
