#include "sampletemperature/Sensor.h"

#include "common/HartTables.h"

namespace sampletemperature {

Sensor SensorOf(Context& context) {
  static const Definition sensorType = VariableNamed("sensor_type");
  return static_cast<Sensor>(context.Long(sensorType));
}

bool HasThermocouple(Context& context) {
  return IsThermocouple(SensorOf(context));
}

bool HasResistance(Context& context) {
  const Sensor sensor = SensorOf(context);
  return IsResistanceThermometer(sensor) || sensor == Sensor::Ohms;
}

const Enums& TemperatureUnits() {
  using enum hart::Unit;
  static const Enums units =
      hart::Units({DegreesCelsius, DegreesFahrenheit, DegreesRankine, Kelvin});
  return units;
}

const Enums& PrimaryUnits(Sensor sensor) {
  static const Enums millivolts = hart::Units({hart::Unit::Millivolts});
  static const Enums ohms = hart::Units({hart::Unit::Ohms, hart::Unit::Kiloohms});
  if (sensor == Sensor::Millivolts) return millivolts;
  if (sensor == Sensor::Ohms) return ohms;
  return TemperatureUnits();
}

}  // namespace sampletemperature
