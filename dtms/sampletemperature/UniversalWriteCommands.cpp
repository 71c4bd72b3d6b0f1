#include "common/HartResponseCodes.h"
#include "sampletemperature/Description.h"

// Layouts are those of the HART universal commands (TS20127), revision 7. A reply
// repeats what was written.
namespace sampletemperature {

void DescribeUniversalWriteCommands(DeviceDescription& dd) {
  // HART command 6
  dd.Command("write_polling_address", 6, Operation::Write)
      .Request({"polling_address", "loop_current_mode"})
      .Reply({"polling_address", "loop_current_mode"})
      .Codes(hart::WriteCodes({hart::InvalidSelection(),
                               {12, ResponseCodeType::DataEntryError,
                                "Invalid mode selection|de|Ungültige Betriebsart"}}));
  // HART command 17
  dd.Command("write_message", 17, Operation::Write)
      .Request({"message"})
      .Reply({"message"})
      .Codes(hart::WriteCodes());
  // HART command 18
  dd.Command("write_tag_descriptor_date", 18, Operation::Write)
      .Request({"tag", "descriptor", "date"})
      .Reply({"tag", "descriptor", "date"})
      .Codes(hart::WriteCodes(
          {{9, ResponseCodeType::DataEntryError, "Invalid date|de|Ungültiges Datum"}}));
  // HART command 19
  dd.Command("write_final_assembly_number", 19, Operation::Write)
      .Request({"final_assembly_number"})
      .Reply({"final_assembly_number"})
      .Codes(hart::WriteCodes());
  // HART command 22
  dd.Command("write_long_tag", 22, Operation::Write)
      .Request({"long_tag"})
      .Reply({"long_tag"})
      .Codes(hart::WriteCodes());
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
      .Codes(hart::ActionCodes({hart::TooFewDataBytes()}));
}

}  // namespace sampletemperature
