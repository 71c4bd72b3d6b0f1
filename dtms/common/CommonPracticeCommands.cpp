#include "common/HartItems.h"
#include "common/HartResponseCodes.h"

// Layouts are those of the HART common practice commands (TS20151). A reply repeats
// what was written.
namespace hart {

using namespace ZAFHartTypes;          // NOLINT(google-build-using-namespace)
using namespace ZAFHartTypes::dtmkit;  // NOLINT(google-build-using-namespace)

namespace {

constexpr std::string_view kArray = kDeviceVariables;
constexpr std::string_view kCode = kDeviceVariableCode;

}  // namespace

// HART command 33
CommandBuilder DescribeReadDeviceVariable(DeviceDescription& dd) {
  return dd.Command("read_device_variables", 33, Operation::Read)
      .Request({Index(kCode)})
      .Reply({Index(kCode), Element(kArray, kCode, "UNITS"), Element(kArray, kCode, "VALUE")})
      .Codes(ReadCodes({InvalidSelection(), TooFewDataBytes(), UpdateFailure()}));
}

// HART command 50
void DescribeReadAssignments(DeviceDescription& dd) {
  dd.Command("read_dynamic_variable_assignments", 50, Operation::Read)
      .Reply({"primary_variable_assignment", "secondary_variable_assignment",
              "tertiary_variable_assignment", "fourth_variable_assignment"})
      .Codes(ReadCodes());
}

void DescribeUnitCommands(DeviceDescription& dd) {
  // HART command 44
  dd.Command("write_pv_unit", 44, Operation::Write)
      .Request({"primary_variable_unit"})
      .Reply({"primary_variable_unit"})
      .Codes(WriteCodes({InvalidSelection()}));
  // HART command 53
  dd.Command("write_device_variable_unit", 53, Operation::Write)
      .Request({Index(kCode), Element(kArray, kCode, "UNITS")})
      .Reply({Index(kCode), Element(kArray, kCode, "UNITS")})
      .Codes(WriteCodes(
          {{11, ResponseCodeType::DataEntryError,
            "Invalid device variable code|de|Ungültige Gerätevariable"},
           {12, ResponseCodeType::DataEntryError, "Invalid units code|de|Ungültige Einheit"}}));
}

void DescribeRangeCommands(DeviceDescription& dd) {
  using enum ResponseCodeType;
  // HART command 34
  dd.Command("write_pv_damping_value", 34, Operation::Write)
      .Request({"damping_value"})
      .Reply({"damping_value"})
      .Codes(WriteCodes({ParameterTooLarge(), ParameterTooSmall(), SetToNearestValue()}));
  // HART command 35
  dd.Command("write_pv_range_values", 35, Operation::Write)
      .Request({"range_unit", "upper_range_value", "lower_range_value"})
      .Reply({"range_unit", "upper_range_value", "lower_range_value"})
      .Codes(WriteCodes(
          {InvalidUnits(),
           {9, DataEntryError, "Lower range value too high|de|Messbereichsanfang zu hoch"},
           {10, DataEntryError, "Lower range value too low|de|Messbereichsanfang zu niedrig"},
           {11, DataEntryError, "Upper range value too high|de|Messbereichsende zu hoch"},
           {12, DataEntryError, "Upper range value too low|de|Messbereichsende zu niedrig"},
           {13, DataEntryError,
            "Both range values out of limits|de|"
            "Beide Messbereichswerte außerhalb der Grenzen"},
           {14, DataEntryWarning, "Span too small|de|Messspanne zu klein"},
           {29, DataEntryError, "Invalid span|de|Ungültige Messspanne"}}));
  const SharedCodes appliedProcess =
      ActionCodes({{9, ProcessError, "Applied process too high|de|Anliegender Messwert zu hoch"},
                   {10, ProcessError, "Applied process too low|de|Anliegender Messwert zu niedrig"},
                   {14, DataEntryWarning, "Span too small|de|Messspanne zu klein"}});
  // HART command 36
  dd.Command("set_pv_upper_range_value", 36, Operation::Command)
      .Transaction(0)
      .Codes(appliedProcess);
  // HART command 37
  dd.Command("set_pv_lower_range_value", 37, Operation::Command)
      .Transaction(0)
      .Codes(appliedProcess);
  // HART command 43
  dd.Command("set_pv_zero", 43, Operation::Command).Transaction(0).Codes(appliedProcess);
}

void DescribeLoopCurrentCommands(DeviceDescription& dd) {
  using enum ResponseCodeType;
  // HART command 40; 0 mA leaves the mode
  dd.Command("enter_exit_fixed_current_mode", 40, Operation::Command)
      .Request({"fixed_loop_current"})
      .Reply({"fixed_loop_current"})
      .Codes(WriteCodes({ParameterTooLarge(),
                         ParameterTooSmall(),
                         LoopCurrentNotActive(),
                         {12, DataEntryError, "Invalid mode selection|de|Ungültige Betriebsart"}}));
  const SharedCodes trim = WriteCodes(
      {ParameterTooLarge(),
       ParameterTooSmall(),
       LoopCurrentNotActive(),
       {9, ModeError, "Not in the right current mode|de|Nicht in der richtigen Strombetriebsart"}});
  // HART command 45
  dd.Command("trim_loop_current_zero", 45, Operation::Command)
      .Request({"measured_loop_current"})
      .Reply({"measured_loop_current"})
      .Codes(trim);
  // HART command 46
  dd.Command("trim_loop_current_gain", 46, Operation::Command)
      .Request({"measured_loop_current"})
      .Reply({"measured_loop_current"})
      .Codes(trim);
}

void DescribeDeviceHandling(DeviceDescription& dd) {
  // HART command 41
  dd.Command("perform_self_test", 41, Operation::Command).Transaction(0).Codes(ActionCodes());
  // HART command 42
  dd.Command("perform_device_reset", 42, Operation::Command).Transaction(0).Codes(ActionCodes());
  // HART command 49
  dd.Command("write_pv_transducer_serial_number", 49, Operation::Write)
      .Request({"transducer_serial_number"})
      .Reply({"transducer_serial_number"})
      .Codes(WriteCodes());
  // HART command 59
  dd.Command("write_number_of_response_preambles", 59, Operation::Write)
      .Request({"response_preambles"})
      .Reply({"response_preambles"})
      .Codes(WriteCodes({ParameterTooLarge(), ParameterTooSmall(), SetToNearestValue()}));
}

}  // namespace hart
