#include "sampletemperature/Description.h"
#include "sampletemperature/LinearisationPoint.h"

namespace sampletemperature {
namespace {

// Each unit variable is written before the values in its unit.
void DescribeUnitRelations(DeviceDescription& dd) {
  auto primary = dd.UnitRelation("primary_unit_relation")
                     .Unit("primary_variable_unit")
                     .Dependents({"primary_variable", "sensor_minimum", "sensor_maximum",
                                  "previous_sensor_maximum"});
  for (int number = 1; number <= kLinearisationPoints; ++number)
    primary.Dependents({LinearisationInput(number), LinearisationOutput(number)});
  dd.UnitRelation("secondary_unit_relation")
      .Unit("secondary_variable_unit")
      .Dependents({"secondary_variable"});
  dd.UnitRelation("tertiary_unit_relation")
      .Unit("tertiary_variable_unit")
      .Dependents({"tertiary_variable"});
  dd.UnitRelation("fourth_unit_relation")
      .Unit("fourth_variable_unit")
      .Dependents({"fourth_variable"});
  dd.UnitRelation("range_unit_relation")
      .Unit("range_unit")
      .Dependents({"upper_range_value", "lower_range_value", "measuring_span"});
  dd.UnitRelation("limits_unit_relation")
      .Unit("transducer_limits_unit")
      .Dependents({"upper_transducer_limit", "lower_transducer_limit", "minimum_span"});
  dd.UnitRelation("trim_unit_relation")
      .Unit("trim_unit")
      .Dependents({"lower_trim_point", "upper_trim_point", "trim_reference"});
}

// The device changes these by itself when a trigger is written.
void DescribeRefreshRelations(DeviceDescription& dd) {
  dd.RefreshRelation("sensor_type_refresh")
      .Triggers({"sensor_type"})
      .Refreshes({"primary_variable_unit", "range_unit", "upper_range_value", "lower_range_value",
                  "transducer_limits_unit", "upper_transducer_limit", "lower_transducer_limit",
                  "minimum_span", "tertiary_variable_unit", "primary_variable_classification",
                  "tertiary_variable_classification"});
  dd.RefreshRelation("primary_unit_refresh")
      .Triggers({"primary_variable_unit"})
      .Refreshes({"transducer_limits_unit", "upper_transducer_limit", "lower_transducer_limit",
                  "minimum_span"});
}

}  // namespace

void DescribeRelations(DeviceDescription& dd) {
  DescribeUnitRelations(dd);
  DescribeRefreshRelations(dd);
  // Command 35 writes them together.
  dd.WriteAsOne("range_values").Members({"range_unit", "lower_range_value", "upper_range_value"});
}

}  // namespace sampletemperature
