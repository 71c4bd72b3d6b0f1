#include "common/HartResponseCodes.h"
#include "common/HartTables.h"
#include "generic/DynamicVariable.h"
#include "generic/Revision.h"

namespace generic {
namespace {

constexpr std::int32_t kNotUsed = 250;  // classification or device variable code of no variable

// What is not mapped to a device variable has no value. Devices that do not tell have all four.
Condition IsMapped(const std::string& name) {
  return [classification = VariableNamed(name + "_classification"),
          assignment = VariableNamed(name + "_assignment")](Context& context) {
    return context.Long(classification) != kNotUsed && context.Long(assignment) != kNotUsed;
  };
}

// The unit of the primary variable is a setting, which command 1 tells alone and command 44 writes;
// the others come with their values.
void DescribeValue(DeviceDescription& dd, const DynamicVariable& variable) {
  const std::string name = variable.name;
  dd.Variable(name)
      .Label(LabelOf(variable))
      .Help("Measured value|de|Messwert")
      .Float()
      .ReadOnly()
      .Dynamic()
      .ValidWhen(IsMapped(name));
  VariableBuilder unit = dd.Variable(name + "_unit");
  unit.Label(LabelOf(variable, " unit", " Einheit"))
      .Help("Engineering unit of the value|de|Physikalische Einheit des Wertes")
      .Enumerated(1, hart::AllUnits())
      .ValidWhen(IsMapped(name));
  if (&variable != &kDynamicVariables.front()) unit.ReadOnly().Dynamic();
}

void DescribeMapping(DeviceDescription& dd, const DynamicVariable& variable) {
  const std::string name = variable.name;
  dd.Variable(name + "_classification")
      .Label(LabelOf(variable, " classification", " Klassifizierung"))
      .Help("Kind of quantity|de|Art der Messgröße")
      .Enumerated(1, hart::DeviceVariableClassifications())
      .ReadOnly()
      .ValidWhen(Since(Revision::Hart6));
  dd.Variable(name + "_assignment")
      .Label(LabelOf(variable, " assignment", " Zuordnung"))
      .Help(
          "Code of the device variable that is mapped to it; 250: none|de|"
          "Nummer der zugeordneten Gerätevariablen; 250: keine")
      .Unsigned(1);
}

}  // namespace

void DescribeProcessVariables(DeviceDescription& dd) {
  for (const DynamicVariable& variable : kDynamicVariables) DescribeMapping(dd, variable);
  for (const DynamicVariable& variable : kDynamicVariables) DescribeValue(dd, variable);
  hart::DescribeLoopValues(dd);
  hart::DescribeReadAssignments(dd);
  // HART command 51
  dd.Command("write_dynamic_variable_assignments", 51, Operation::Write)
      .Request({"primary_variable_assignment", "secondary_variable_assignment",
                "tertiary_variable_assignment", "fourth_variable_assignment"})
      .Reply({"primary_variable_assignment", "secondary_variable_assignment",
              "tertiary_variable_assignment", "fourth_variable_assignment"})
      .Codes(hart::WriteCodes({hart::InvalidSelection()}));
}

}  // namespace generic
