#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ddobjects/Codes.h"
#include "types/Variant.h"

namespace hartframe {

// Values as data set files have them: "single 473.15", the word for the variant's type and its text
// in one line. They read back exactly, whatever language and locale: numbers have as many digits as
// that takes, a NaN its bits.

// Raises TypeMismatch for an array.
std::string StoredValueText(const ZAFHartTypes::Variant& value);
// Nothing for a text that is not of that form, or does not fit the type.
std::optional<ZAFHartTypes::Variant> ReadStoredValue(std::string_view text);

// The word for the type of a DD variable: "float", "packed-ascii", …
std::string_view TypeWord(ZAFHartTypes::TypeCode code);
std::optional<ZAFHartTypes::TypeCode> ReadTypeWord(std::string_view word);

}  // namespace hartframe
