#pragma once

#include <array>
#include <string>

// The four dynamic variables of a HART device.
namespace generic {

struct DynamicVariable {
  const char* name;     // of the value; the names of what belongs to it begin with it
  const char* english;  // label
  const char* german;
};

inline constexpr std::array<DynamicVariable, 4> kDynamicVariables{{
    {"primary_variable", "Primary variable", "Erste Messgröße"},
    {"secondary_variable", "Secondary variable", "Zweite Messgröße"},
    {"tertiary_variable", "Tertiary variable", "Dritte Messgröße"},
    {"fourth_variable", "Quaternary variable", "Vierte Messgröße"},
}};

// "Primary variable unit|de|Erste Messgröße Einheit".
inline std::string LabelOf(const DynamicVariable& variable, const std::string& english = "",
                           const std::string& german = "") {
  return variable.english + english + "|de|" + variable.german + german;
}

}  // namespace generic
