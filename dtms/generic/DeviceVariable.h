#pragma once

#include <string>

namespace generic {

// Device variables that can be looked at one by one: codes 0 to 7.
inline constexpr int kDeviceVariableCount = 8;

// "device_variable_3"; the names of what belongs to it begin with it.
inline std::string DeviceVariableName(int code) {
  return "device_variable_" + std::to_string(code);
}

}  // namespace generic
