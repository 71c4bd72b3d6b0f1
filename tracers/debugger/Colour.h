#pragma once

#include <string>
#include <string_view>

namespace ZAFHartDebugger {

// What a part of a line is; ANSI colours show it.
enum class Colour { Plain, Faint, Operation, Request, Reply, Notice, Error, Change };

// The text in its colour when colours are shown.
std::string Painted(Colour colour, std::string_view text, bool showsColours);

}  // namespace ZAFHartDebugger
