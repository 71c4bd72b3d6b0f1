#pragma once

#include <string>
#include <string_view>

#include "ddobjects/Codes.h"
#include "types/Variant.h"

namespace HartLinkSim {

// Values as texts that are read back exactly, in any locale:
//   floating point   "12.5", "inf", "-inf", "nan:0x7FA00000" (bits of the number)
//   integers         decimal, of unsigned types the unsigned number; "0x…" is read as well
//   dates            "2026-11-24", "0xFFFFFF" for three bytes that form no date
//   texts            as they are
// A value whose type is not known is written as its own kind of value.
std::string ValueText(const ZAFHartTypes::Variant& value, ZAFHartTypes::TypeCode type);
// Raises TypeMismatch saying what was expected.
ZAFHartTypes::Variant ValueFromText(std::string_view text, ZAFHartTypes::TypeCode type);

}  // namespace HartLinkSim
