#include "common/HartItems.h"
#include "common/HartTables.h"
#include "sampletemperature/Description.h"
#include "sampletemperature/Sensor.h"

namespace sampletemperature {
namespace {

// Units follow the sensor.
VariableBuilder DescribeUnits(DeviceDescription& dd, std::string_view name) {
  return dd.Known(name)
      .Enumerated(1, TemperatureUnits())
      .OnCompute([](Context& context, Variable& variable) {
        variable.EditTypeInfo().SetEnumItems(PrimaryUnits(SensorOf(context)));
      });
}

}  // namespace

void DescribeRangeVariables(DeviceDescription& dd) {
  hart::DescribeRangeVariables(dd);
  constexpr auto kCelsius = static_cast<std::int32_t>(hart::Unit::DegreesCelsius);
  DescribeUnits(dd, "transducer_limits_unit").Default(kCelsius);
  dd.Known("upper_transducer_limit").Default(1372.0F);  // of the default sensor
  dd.Known("lower_transducer_limit").Default(-180.0F);
  dd.Known("minimum_span").Default(50.0F);
  DescribeUnits(dd, "range_unit").Default(kCelsius);
  dd.Known("upper_range_value").Default(100.0F);
  dd.Known("lower_range_value").Default(0.0F);
  dd.Known("damping_value")
      .Range(0.0F, 60.0F)
      .Default(0.0F)
      .Actions(ActionList::PreWrite, {"round_damping"});
  dd.Known("loop_current_mode").Actions(ActionList::PostWrite, {"warn_of_multi_drop"});
  dd.Known("transfer_function").ReadOnly();
  dd.Known("alarm_selection").Default(0);
}

}  // namespace sampletemperature
