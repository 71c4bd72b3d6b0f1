#pragma once

#include "types/Variant.h"

namespace ZAFHartLib {

// A single or double value that is an infinity or a NaN.
inline bool IsNotFinite(const ZAFHartTypes::Variant& value) {
  return value.IsNotFinite();
}

}  // namespace ZAFHartLib
