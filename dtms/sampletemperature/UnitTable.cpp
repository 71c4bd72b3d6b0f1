#include "common/HartTables.h"
#include "sampletemperature/Description.h"

namespace sampletemperature {
namespace {

struct TemperatureUnit {
  hart::Unit code;
  double factor;
  double offset;
  const char* name;
  const char* help;
};

// A temperature of b °C is (b + offset) * factor in the unit.
constexpr TemperatureUnit kTemperatureUnits[] = {
    {hart::Unit::DegreesCelsius, 1, 0, "°C", "degrees Celsius|de|Grad Celsius"},
    {hart::Unit::DegreesFahrenheit, 1.8, 32 / 1.8, "°F", "degrees Fahrenheit|de|Grad Fahrenheit"},
    {hart::Unit::DegreesRankine, 1.8, 273.15, "°R", "degrees Rankine|de|Grad Rankine"},
    {hart::Unit::Kelvin, 1, 273.15, "K", "kelvin|de|Kelvin"},
};

void FillUnitTable(IDDBuiltinLib& dd) {
  for (const TemperatureUnit& unit : kTemperatureUnits) {
    Extended(dd).AddUnit(static_cast<std::int32_t>(unit.code), unit.factor, unit.offset, unit.name,
                         unit.help);
  }
}

}  // namespace

// The library runs it when the data set has been made. Values then follow a change of their unit.
void DescribeUnitTable(DeviceDescription& dd) {
  dd.Method("__ZAF__init_unit_table").Label("Units|de|Einheiten").Body(FillUnitTable);
}

}  // namespace sampletemperature
