#include "generic/Description.h"
#include "generic/DeviceVariable.h"
#include "generic/DynamicVariable.h"

namespace generic {
namespace {

void DescribeUnitRelations(DeviceDescription& dd) {
  for (const DynamicVariable& variable : kDynamicVariables) {
    const std::string name = variable.name;
    dd.UnitRelation(name + "_unit_relation").Unit(name + "_unit").Dependents({name});
  }
  dd.UnitRelation("range_unit_relation")
      .Unit("range_unit")
      .Dependents({"upper_range_value", "lower_range_value"});
  dd.UnitRelation("limits_unit_relation")
      .Unit("transducer_limits_unit")
      .Dependents({"upper_transducer_limit", "lower_transducer_limit", "minimum_span"});
  for (int code = 0; code < kDeviceVariableCount; ++code) {
    const std::string name = DeviceVariableName(code);
    dd.UnitRelation(name + "_unit_relation").Unit(name + "_unit").Dependents({name + "_value"});
    dd.UnitRelation(name + "_limits_unit_relation")
        .Unit(name + "_limits_unit")
        .Dependents({name + "_upper_limit", name + "_lower_limit", name + "_minimum_span"});
  }
}

}  // namespace

void DescribeRelations(DeviceDescription& dd) {
  DescribeUnitRelations(dd);
  // Devices convert their range and limits by themselves, or map another quantity.
  dd.RefreshRelation("primary_unit_refresh")
      .Triggers({"primary_variable_unit"})
      .Refreshes({"range_unit", "upper_range_value", "lower_range_value", "transducer_limits_unit",
                  "upper_transducer_limit", "lower_transducer_limit", "minimum_span"});
  dd.RefreshRelation("assignment_refresh")
      .Triggers({"primary_variable_assignment"})
      .Refreshes({"primary_variable_unit", "range_unit", "upper_range_value", "lower_range_value",
                  "transducer_limits_unit", "upper_transducer_limit", "lower_transducer_limit",
                  "minimum_span"});
  // Command 35 writes them together.
  dd.WriteAsOne("range_values").Members({"range_unit", "lower_range_value", "upper_range_value"});
}

}  // namespace generic
