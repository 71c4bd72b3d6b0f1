#include "common/HartItems.h"
#include "common/HartResponseCodes.h"

// Layouts are those of the HART universal commands (TS20127). A reply repeats what was written.
namespace hart {

using namespace ZAFHartTypes;          // NOLINT(google-build-using-namespace)
using namespace ZAFHartTypes::dtmkit;  // NOLINT(google-build-using-namespace)

void DescribeWriteCommands(DeviceDescription& dd) {
  // HART command 17
  dd.Command("write_message", 17, Operation::Write)
      .Request({"message"})
      .Reply({"message"})
      .Codes(WriteCodes());
  // HART command 18
  dd.Command("write_tag_descriptor_date", 18, Operation::Write)
      .Request({"tag", "descriptor", "date"})
      .Reply({"tag", "descriptor", "date"})
      .Codes(
          WriteCodes({{9, ResponseCodeType::DataEntryError, "Invalid date|de|Ungültiges Datum"}}));
  // HART command 19
  dd.Command("write_final_assembly_number", 19, Operation::Write)
      .Request({"final_assembly_number"})
      .Reply({"final_assembly_number"})
      .Codes(WriteCodes());
  // HART command 22
  dd.Command("write_long_tag", 22, Operation::Write)
      .Request({"long_tag"})
      .Reply({"long_tag"})
      .Codes(WriteCodes());
  // HART command 38: whoever knows the counter sends it along, so that a change that came between
  // is not lost; the empty form is that of revisions before 7.
  dd.Command("reset_configuration_change_flag", 38, Operation::Command)
      .Transaction(0)
      .Transaction(1)
      .Request({"configuration_change_counter"})
      .Reply({"configuration_change_counter"})
      .TransactionCodes({{9, ResponseCodeType::DataEntryError,
                          "Configuration change counter mismatch|de|"
                          "Änderungszähler stimmt nicht überein"}})
      .Codes(ActionCodes({TooFewDataBytes()}));
}

}  // namespace hart
