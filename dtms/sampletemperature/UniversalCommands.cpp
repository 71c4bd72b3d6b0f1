#include "common/HartItems.h"
#include "common/HartResponseCodes.h"
#include "sampletemperature/Description.h"
#include "sampletemperature/DeviceVariable.h"

// Layouts are those of the HART universal commands (TS20127), revision 7.
namespace sampletemperature {
namespace {

// Data of commands 0, 11 and 21.
std::vector<CommandItem> Identity() {
  return {Byte(254),
          "device_type",
          "request_preambles",
          "universal_revision",
          "device_revision",
          "software_revision",
          Masked("hardware_revision", 0xF8),
          Masked("physical_signaling_code", 0x07),
          "device_flags",
          "device_id",
          "response_preambles",
          "max_device_variables",
          "configuration_change_counter",
          "extended_device_status",
          "manufacturer_id",
          "private_label_distributor",
          "device_profile"};
}

void DescribeIdentification(DeviceDescription& dd) {
  // HART command 0
  dd.Command("read_unique_identifier", 0, Operation::Read)
      .Reply(Identity())
      .Codes(hart::ReadCodes());
  // HART command 11. Only the device of that tag answers, so it reads nothing for its own sake.
  dd.Command("read_unique_identifier_with_tag", 11, Operation::Command)
      .Request({"tag"})
      .Reply(Identity())
      .Codes(hart::ReadCodes());
  // HART command 21, likewise
  dd.Command("read_unique_identifier_with_long_tag", 21, Operation::Command)
      .Request({"long_tag"})
      .Reply(Identity())
      .Codes(hart::ReadCodes());
}

// One slot of command 9 for the device variable of that code.
void AddSlot(std::vector<CommandItem>& items, const DeviceVariable& variable) {
  const std::string name = variable.name;
  items.push_back(Byte(static_cast<std::uint8_t>(variable.code)));
  items.emplace_back((name + "_classification").c_str());
  items.emplace_back((name + "_unit").c_str());
  items.emplace_back(name.c_str());
  items.push_back(Masked(name + "_data_quality", 0xC0));
  items.push_back(Masked(name + "_limit_status", 0x30));
  items.push_back(Masked(name + "_family_status", 0x0F));
}

// HART command 9: one device variable of one's choice, or all four.
void DescribeDeviceVariablesWithStatus(DeviceDescription& dd) {
  constexpr std::string_view kArray = hart::kDeviceVariables;
  constexpr std::string_view kCode = hart::kDeviceVariableCode;
  std::vector<CommandItem> request;
  std::vector<CommandItem> reply{"extended_device_status"};
  for (const DeviceVariable& variable : kDeviceVariables) {
    request.push_back(Byte(static_cast<std::uint8_t>(variable.code)));
    AddSlot(reply, variable);
  }
  reply.emplace_back("data_time_stamp");
  dd.Command("read_device_variables_with_status", 9, Operation::Read)
      .Transaction(0)
      .Request({Index(kCode)})
      .Reply({"extended_device_status", Index(kCode), Element(kArray, kCode, "CLASSIFICATION"),
              Element(kArray, kCode, "UNITS"), Element(kArray, kCode, "VALUE"),
              Element(kArray, kCode, "DATA_QUALITY", 0xC0),
              Element(kArray, kCode, "LIMIT_STATUS", 0x30),
              Element(kArray, kCode, "FAMILY_STATUS", 0x0F), "data_time_stamp"})
      .TransactionCodes({hart::InvalidSelection()})
      .Transaction(1)
      .Request(request)
      .Reply(reply)
      .Codes(hart::DeviceVariableCodes());
}

void DescribeSettings(DeviceDescription& dd) {
  // HART command 7
  dd.Command("read_loop_configuration", 7, Operation::Read)
      .Reply({"polling_address", "loop_current_mode"})
      .Codes(hart::ReadCodes());
  // HART command 15; the distributor's place is reserved since revision 7
  dd.Command("read_device_information", 15, Operation::Read)
      .Reply({"alarm_selection", "transfer_function", "range_unit", "upper_range_value",
              "lower_range_value", "damping_value", "write_protect", Byte(250),
              "analog_channel_flags"})
      .Codes(hart::ReadCodes());
  // HART command 6
  dd.Command("write_polling_address", 6, Operation::Write)
      .Request({"polling_address", "loop_current_mode"})
      .Reply({"polling_address", "loop_current_mode"})
      .Codes(hart::WriteCodes({hart::InvalidSelection(),
                               {12, ResponseCodeType::DataEntryError,
                                "Invalid mode selection|de|Ungültige Betriebsart"}}));
}

// HART command 48, with the first six device-specific bytes
void DescribeAdditionalStatus(DeviceDescription& dd) {
  dd.Command("read_additional_transmitter_status", 48, Operation::Read)
      .Reply({"device_specific_status_0", "device_specific_status_1", "device_specific_status_2",
              "device_specific_status_3", "device_specific_status_4", "device_specific_status_5",
              "extended_device_status", "device_operating_mode", "standardized_status_0",
              "standardized_status_1", "analog_channel_saturated", "standardized_status_2",
              "standardized_status_3", "analog_channel_fixed"})
      .Codes(hart::ReadCodes({hart::UpdateFailure(),
                              {14, ResponseCodeType::MiscWarning,
                               "Status bytes mismatch|de|Statusbytes abweichend"}}));
}

}  // namespace

void DescribeUniversalCommands(DeviceDescription& dd) {
  DescribeIdentification(dd);
  hart::DescribeMeasurementCommands(dd);
  DescribeDeviceVariablesWithStatus(dd);
  hart::DescribeNameCommands(dd);
  DescribeSettings(dd);
  DescribeAdditionalStatus(dd);
  hart::DescribeWriteCommands(dd);
}

}  // namespace sampletemperature
