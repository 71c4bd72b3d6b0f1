#pragma once

#include <string_view>

#include "ddobjects/Variable.h"
#include "hartframe/Console.h"
#include "hartframe/Speech.h"

namespace hartframe {

// Takes an answer as the variable's value: text that ParseValue reads, and for a selection the text
// of an option in any language of `options`, a multilingual text of options separated by ";". False
// for what the variable does not accept; it is then left alone.
bool TakeAnswer(ZAFHartTypes::Variable& variable, std::string_view answer,
                std::string_view options = {});

// Asks on the terminal until the variable has accepted a value; Enter alone takes the one that it
// has. False when the user gives up, when it is broken off, or nobody can be asked.
bool AskForValue(ZAFHartTypes::Variable& variable, Console& console, const Speech& speech,
                 const Console::BreakCheck& isBroken, std::string_view options = {});

}  // namespace hartframe
