#pragma once

#include <cstdint>
#include <string>

#include "interfaces/IDDDTMGUI.h"
#include "types/PromptValues.h"

namespace ZAFHartLib {

enum class ErrorSeverity : std::uint8_t {
  Error,     // waits for the user
  Critical,  // stands for 300 seconds at most
};

// Shows the string resource `id`, its references filled from `values`, as an error message, and
// hides it again. True when the communication is to count as failed: always after a critical error,
// otherwise when the user cancelled the message.
bool ShowError(ZAFHartTypes::IDDDTMGUI& gui, ErrorSeverity severity, std::int32_t id,
               const ZAFHartTypes::PromptValues& values = {});
// The same with a multilingual text.
bool ShowError(ZAFHartTypes::IDDDTMGUI& gui, ErrorSeverity severity, const std::string& text);

}  // namespace ZAFHartLib
