#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ZAFHartLib {

// The multilingual text of the DD error `index` (resource 1200 + index); "" for an unknown one.
const std::string& GetDDErrorCode(std::int32_t index);

// Takes the characters of `text` off its front: each run of control characters becomes one blank, a
// NUL ends the filtering. What stands behind the NUL stays in `text`.
std::string FilterCtrlChars(std::string& text);

// Takes the run of digits at the start of `rest` off; -1 when there is none. Larger numbers than
// `most` count as `most`.
int TakeNumber(std::string_view& rest, int most);

// A menu entry is a name, optionally followed by "[" GUI class "]".
// The name without surrounding blanks.
std::string StripMenuName(std::string_view menuEntry);
// The GUI class without surrounding blanks; `defaultValue` when the entry has none. Raises
// InvalidArgument for a "[" without a "]" behind it.
std::string StripMenuGuiClass(std::string_view menuEntry, std::string_view defaultValue = {});

}  // namespace ZAFHartLib
