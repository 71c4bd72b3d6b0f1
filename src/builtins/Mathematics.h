#pragma once

#include <cstdint>
#include <optional>

#include "types/Variant.h"

namespace ZAFHartLib {

// The function of that number (1000 to 1015, 1017 to 1021) of `argument`; nothing for another
// number. An argument outside the function's domain and a result that no number holds raise
// Overflow; a text that is no number TypeMismatch. A NaN or infinite argument passes through.
std::optional<ZAFHartTypes::Variant> Calculate(std::int32_t function,
                                               const ZAFHartTypes::Variant& argument);

// `value` rounded to so many decimals, halves to the even neighbour. Raises InvalidProcedureCall
// for negative decimals.
double RoundHalfEven(double value, std::int32_t decimals);

}  // namespace ZAFHartLib
