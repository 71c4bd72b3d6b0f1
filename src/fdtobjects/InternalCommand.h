#pragma once

#include <string_view>

#include "ddobjects/Command.h"

namespace ZAFHartLib {

inline constexpr std::string_view kResetConfigurationChangeFlag = "reset_configuration_change_flag";

// Lays out HART command 38, "reset configuration changed flag".
void ComputeResetConfigurationChangeFlag(ZAFHartTypes::Command& command);

}  // namespace ZAFHartLib
