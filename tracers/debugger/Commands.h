#pragma once

#include <string_view>

namespace ZAFHartDebugger {

class Debugger;
struct StopPlace;

enum class Outcome { AsksAgain, GoesOn };

// Runs one command of the prompt ("break ReadVariable:tag"; "help" lists them all). A wrong one is
// told on the terminal. Without operations in `place` nothing has stopped yet: what looks at them
// is refused.
Outcome RunCommand(Debugger& debugger, const StopPlace& place, std::string_view line);

}  // namespace ZAFHartDebugger
