#include "common/HartItems.h"
#include "common/HartResponseCodes.h"

// Layouts are those of the HART universal commands (TS20127).
namespace hart {

using namespace ZAFHartTypes;          // NOLINT(google-build-using-namespace)
using namespace ZAFHartTypes::dtmkit;  // NOLINT(google-build-using-namespace)

void DescribeMeasurementCommands(DeviceDescription& dd) {
  const SharedCodes codes = ReadCodes({UpdateFailure()});
  // HART command 1
  dd.Command("read_primary_variable", 1, Operation::Read)
      .Reply({"primary_variable_unit", "primary_variable"})
      .Codes(codes);
  // HART command 2
  dd.Command("read_pv_current_and_percent_of_range", 2, Operation::Read)
      .Reply({"loop_current", "percent_of_range"})
      .Codes(codes);
  // HART command 3
  dd.Command("read_dynamic_variables_and_pv_current", 3, Operation::Read)
      .Reply({"loop_current", "primary_variable_unit", "primary_variable",
              "secondary_variable_unit", "secondary_variable", "tertiary_variable_unit",
              "tertiary_variable", "fourth_variable_unit", "fourth_variable"})
      .Codes(codes);
  // HART command 8
  dd.Command("read_dynamic_variable_classifications", 8, Operation::Read)
      .Reply({"primary_variable_classification", "secondary_variable_classification",
              "tertiary_variable_classification", "fourth_variable_classification"})
      .Codes(ReadCodes());
}

void DescribeNameCommands(DeviceDescription& dd) {
  // HART command 12
  dd.Command("read_message", 12, Operation::Read).Reply({"message"}).Codes(ReadCodes());
  // HART command 13
  dd.Command("read_tag_descriptor_date", 13, Operation::Read)
      .Reply({"tag", "descriptor", "date"})
      .Codes(ReadCodes());
  // HART command 14
  dd.Command("read_pv_transducer_information", 14, Operation::Read)
      .Reply({"transducer_serial_number", "transducer_limits_unit", "upper_transducer_limit",
              "lower_transducer_limit", "minimum_span"})
      .Codes(ReadCodes());
  // HART command 16
  dd.Command("read_final_assembly_number", 16, Operation::Read)
      .Reply({"final_assembly_number"})
      .Codes(ReadCodes());
  // HART command 20
  dd.Command("read_long_tag", 20, Operation::Read).Reply({"long_tag"}).Codes(ReadCodes());
}

SharedCodes DeviceVariableCodes() {
  return ReadCodes({TooFewDataBytes(),
                    UpdateFailure(),
                    {14, ResponseCodeType::MiscWarning,
                     "Dynamic variables returned for device variables|de|"
                     "Dynamische Variablen statt Gerätevariablen"},
                    {30, ResponseCodeType::MiscWarning, "Reply truncated|de|Antwort gekürzt"}});
}

}  // namespace hart
