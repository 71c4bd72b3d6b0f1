#pragma once

#include <string>

namespace sampletemperature {

// Points of the linearisation table, numbered from 1.
inline constexpr int kLinearisationPoints = 8;

inline std::string LinearisationPoint(int number) {
  return "linearisation_point_" + std::to_string(number);
}
inline std::string LinearisationInput(int number) {
  return "linearisation_input_" + std::to_string(number);
}
inline std::string LinearisationOutput(int number) {
  return "linearisation_output_" + std::to_string(number);
}

}  // namespace sampletemperature
