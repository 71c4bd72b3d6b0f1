#pragma once

#include <string>

#include "ddobjects/TypeInfo.h"
#include "ddobjects/Variable.h"
#include "platform/Export.h"
#include "types/Variant.h"

namespace ZAFHartLib {

// The value as its type shows it: numbers scaled and laid out by the display format, the
// description of an enumeration's or array's value (multilingual), one "0" or "1" per bit item,
// texts as they are, one "*" per character of a password, dates in the user's short date format.
// "" for a type that is not computed. Raises TypeMismatch or Overflow for a value that does not fit
// the type (bytes that form no date, a text for a number).
ZAF_API std::string GetValueDisplayString(const ZAFHartTypes::Variant& value,
                                          const ZAFHartTypes::TypeInfo& typeInfo);
// The same for the variable's present value, available or not, without its unit.
ZAF_API std::string GetVariableDisplayString(const ZAFHartTypes::Variable& variable);

// A negative value as its unsigned 32-bit equivalent (value + 4294967296); others as they are.
ZAF_API double ToUnsigned32(double value);

}  // namespace ZAFHartLib
