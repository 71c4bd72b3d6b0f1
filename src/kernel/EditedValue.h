#pragma once

#include <string>
#include <string_view>

#include "ddobjects/Variable.h"

namespace ZAFHartLib {

// Error text of a variable that refused an edited value, in the given language: that it cannot be
// written, and the limits of its ranges where it has any, as in "variable cannot be written (0 ...
// 10; 20 ...)".
std::string RefusalText(const ZAFHartTypes::Variable& variable, std::string_view language);

}  // namespace ZAFHartLib
