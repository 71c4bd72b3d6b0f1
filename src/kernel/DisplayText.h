#pragma once

#include <string>

#include "text/DisplayString.h"
#include "types/Failure.h"

namespace ZAFHartLib {

// The variable's value as shown to the user; "" for a value that does not fit its type.
inline std::string DisplayText(const ZAFHartTypes::Variable& variable) {
  std::string text;
  ZAFHartTypes::IgnoreFailures([&] { text = GetVariableDisplayString(variable); });
  return text;
}

}  // namespace ZAFHartLib
