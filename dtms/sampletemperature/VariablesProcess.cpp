#include "common/HartItems.h"
#include "common/HartTables.h"
#include "sampletemperature/Description.h"
#include "sampletemperature/DeviceVariable.h"
#include "sampletemperature/Sensor.h"

namespace sampletemperature {
namespace {

VariableBuilder DescribeUnitOf(DeviceDescription& dd, std::size_t position, Enums units,
                               hart::Unit initial) {
  const DeviceVariable& variable = kDeviceVariables[position];
  VariableBuilder unit = dd.Variable(std::string(variable.name) + "_unit");
  unit.Label(LabelOf(variable, " unit", " Einheit"))
      .Help("Engineering unit of the value|de|Physikalische Einheit des Wertes")
      .Enumerated(1, std::move(units))
      .Default(static_cast<std::int32_t>(initial));
  return unit;
}

void DescribeUnits(DeviceDescription& dd) {
  using enum hart::Unit;
  DescribeUnitOf(dd, 0, TemperatureUnits(), DegreesCelsius)
      .OnCompute([](Context& context, Variable& variable) {
        variable.EditTypeInfo().SetEnumItems(PrimaryUnits(SensorOf(context)));
      });
  DescribeUnitOf(dd, 1, TemperatureUnits(), DegreesCelsius);
  DescribeUnitOf(dd, 2, hart::Units({Millivolts, Ohms, Kiloohms}), Millivolts).ReadOnly();
  DescribeUnitOf(dd, 3, hart::Units({Volts}), Volts).ReadOnly();
}

void DescribeValues(DeviceDescription& dd) {
  for (const DeviceVariable& variable : kDeviceVariables) {
    dd.Variable(variable.name)
        .Label(LabelOf(variable))
        .Help("Measured value|de|Messwert")
        .Float()
        .Format("8.3f")
        .ReadOnly()
        .Dynamic();
  }
  hart::DescribeLoopValues(dd);
  hart::DescribeTimeStamp(dd);
}

}  // namespace

void DescribeProcessVariables(DeviceDescription& dd) {
  DescribeValues(dd);
  DescribeUnits(dd);
}

}  // namespace sampletemperature
