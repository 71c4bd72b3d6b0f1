#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "types/PromptValues.h"

namespace ZAFHartLib {

// Fills in the value references of a prompt: "%", an optional "[" format "]", then "{name}" or a
// name of letters and digits. Format: "0" (pad with zeros), width, "." precision, conversion:
//   d i u   decimal          f     fixed             g G   fixed, or with exponent when too long
//   o x X   radix 8 or 16    e E   with exponent     L     the value of the key name & "LABEL"
// Any other conversion, or none, shows the value's own text. Never fails: an unknown key and a
// value that does not convert show nothing (a "%" right behind them is written), a malformed
// reference stands as it is. Widths above kMostPlaces count as that.
std::string FormatDDString(std::string_view prompt, const ZAFHartTypes::PromptValues& values);

// Number as text of at least `width` characters, padded with blanks in front or, with `zero`, with
// zeros behind the sign.
std::string FormatDecimal(std::int32_t number, int width, bool zero);
// `radix` 2 to 16; a negative number as its 32-bit two's complement.
std::string FormatRadix(std::int32_t number, std::uint32_t radix, int width, bool zero, bool upper);
// Precision -1: no decimals, or as many as fill the width. Numbers that are not finite give
// NotFiniteText, unpadded.
std::string FormatFixed(double value, int width, int precision, bool zero);
// The exponent's letter has the case of `conversion`.
std::string FormatExponent(double value, int width, int precision, bool zero, char conversion);

// "IEEE#: +INFINITE", "IEEE#: -INFINITE" or "IEEE#: NOT A NUMBER".
std::string_view NotFiniteText(double value);

// Takes the longest run of 0-9, a-z and A-Z off the start of `rest`.
std::string_view ReadReferenceName(std::string_view& rest);

}  // namespace ZAFHartLib
