#pragma once

#include "sampletemperature/Description.h"

// What depends on the sensor that the transmitter is set to.
namespace sampletemperature {

enum class Sensor : std::int32_t {
  Pt100 = 1,
  Pt500 = 2,
  Pt1000 = 3,
  Ni100 = 4,
  Cu10 = 5,
  CallendarVanDusen = 9,  // platinum with coefficients of its own
  TypeB = 20,
  TypeE = 21,
  TypeJ = 22,
  TypeK = 23,
  TypeN = 24,
  TypeR = 25,
  TypeS = 26,
  TypeT = 27,
  Millivolts = 40,
  Ohms = 41,
};

// The sensor as last known.
Sensor SensorOf(Context& context);
constexpr bool IsThermocouple(Sensor sensor) {
  return sensor >= Sensor::TypeB && sensor <= Sensor::TypeT;
}
constexpr bool IsResistanceThermometer(Sensor sensor) {
  return sensor >= Sensor::Pt100 && sensor <= Sensor::CallendarVanDusen;
}

// Conditions.
bool HasThermocouple(Context& context);
// A resistance thermometer, or a resistance that is measured as such.
bool HasResistance(Context& context);

const Enums& TemperatureUnits();
// Units that the primary variable can have with a sensor.
const Enums& PrimaryUnits(Sensor sensor);

}  // namespace sampletemperature
