#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ddobjects/Variable.h"
#include "hartframe/Speech.h"

namespace hartframe {

// Reads a value that a person typed: numbers with "." or the user's separator, in display scale;
// integers and bits also as 0x…; enumerations and array elements by their text in any language,
// without regard to letter case, or by their code; bits also as texts joined by "+"; dates as
// yyyy-MM-dd or in the user's short form; texts as they are. Raises TypeMismatch for what the
// variable's type cannot take; the limits are not looked at.
ZAFHartTypes::Variant ParseValue(std::string_view text, const ZAFHartTypes::Variable& variable);

// The value when the variable accepts it, limits included; nothing otherwise.
std::optional<ZAFHartTypes::Variant> AcceptedValue(std::string_view text,
                                                   const ZAFHartTypes::Variable& variable);
// Why it does not: a sentence with what is allowed.
std::string RefusalSentence(std::string_view text, const ZAFHartTypes::Variable& variable,
                            const Speech& speech);

// A value of the variable for a question: as DisplayValue, but a number without a display format
// has no more digits than it needs.
std::string QuestionText(const ZAFHartTypes::Variable& variable, const ZAFHartTypes::Variant& value,
                         const Speech& speech);

// Text that ParseValue reads back, whatever language and locale: for files.
std::string StoredText(const ZAFHartTypes::Variant& value, const ZAFHartTypes::Variable& variable);

// What the variable accepts, as a sentence for the user.
std::string AllowedText(const ZAFHartTypes::Variable& variable, const Speech& speech);

}  // namespace hartframe
