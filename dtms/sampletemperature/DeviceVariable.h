#pragma once

#include <array>
#include <string>

// The four device variables that the transmitter measures; they are its four dynamic variables,
// in this order.
namespace sampletemperature {

struct DeviceVariable {
  int code;
  const char* name;     // of the value; the names of what belongs to it begin with it
  const char* english;  // label
  const char* german;
};

inline constexpr std::array<DeviceVariable, 4> kDeviceVariables{{
    {0, "primary_variable", "Sensor temperature", "Sensortemperatur"},
    {1, "secondary_variable", "Electronics temperature", "Elektroniktemperatur"},
    {2, "tertiary_variable", "Sensor signal", "Sensorsignal"},
    {3, "fourth_variable", "Terminal voltage", "Klemmenspannung"},
}};

// "Sensor temperature unit|de|Sensortemperatur Einheit".
inline std::string LabelOf(const DeviceVariable& variable, const std::string& english = "",
                           const std::string& german = "") {
  return variable.english + english + "|de|" + variable.german + german;
}

}  // namespace sampletemperature
