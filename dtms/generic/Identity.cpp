#include "common/HartResponseCodes.h"
#include "generic/Revision.h"

// Layouts are those of the HART universal commands (TS20127) of revisions 5, 6 and 7.
namespace generic {
namespace {

using Items = std::vector<CommandItem>;

Items operator+(Items items, const Items& more) {
  items.insert(items.end(), more.begin(), more.end());
  return items;
}

// Data of commands 0, 11 and 21. As long as the revision is not known, the data that all have; the
// values that a revision adds are read by the next command 0. Before revision 7 the maker is the
// first byte of the device type.
std::vector<Layout> IdentityLayouts() {
  const Items ofAll{"request_preambles",
                    "universal_revision",
                    "device_revision",
                    "software_revision",
                    Masked("hardware_revision", 0xF8),
                    Masked("physical_signaling_code", 0x07),
                    "device_flags",
                    "device_id"};
  const Items type{Byte(254), "device_type"};
  const Items maker{Byte(254), Masked("manufacturer_id", 0xFF00), Masked("device_type", 0xFFFF)};
  const Items since6{"response_preambles", "max_device_variables", "configuration_change_counter",
                     "extended_device_status"};
  const Items since7{"manufacturer_id", "private_label_distributor", "device_profile"};
  return {{Revision::Unknown, type + ofAll},
          {Revision::Hart5, maker + ofAll},
          {Revision::Hart6, maker + ofAll + since6},
          {Revision::Hart7, type + ofAll + since6 + since7}};
}

void DescribeIdentification(DeviceDescription& dd) {
  // HART command 0
  ByRevision(dd.Command("read_unique_identifier", 0, Operation::Read).Codes(hart::ReadCodes()), 0,
             IdentityLayouts());
  // HART commands 11 and 21. Only the device of that tag answers: they read nothing for its own
  // sake.
  const auto withName = [&dd](const char* command, std::int16_t number, const char* name) {
    std::vector<Layout> layouts = IdentityLayouts();
    for (Layout& layout : layouts) layout.request = {name};
    ByRevision(dd.Command(command, number, Operation::Command).Codes(hart::ReadCodes()), 0,
               layouts);
  };
  withName("read_unique_identifier_with_tag", 11, "tag");
  withName("read_unique_identifier_with_long_tag", 21, "long_tag");
}

// Before revision 6 nothing tells the address, and the device decides about its current by it.
void DescribeAddress(DeviceDescription& dd) {
  ReadableSinceHart6(dd.Known("polling_address"));
  dd.Known("polling_address").OnCompute([](Context& context, Variable& variable) {
    if (RevisionOf(context) == Revision::Hart5) variable.EditTypeInfo().SetMaxValue(1, 15);
  });
  // HART command 7
  ReadsWhen(dd.Command("read_loop_configuration", 7, Operation::Read)
                .Reply({"polling_address", "loop_current_mode"})
                .Codes(hart::ReadCodes()),
            Since(Revision::Hart6));
  // HART command 6
  const Items address{"polling_address"};
  const Items both{"polling_address", "loop_current_mode"};
  ByRevision(dd.Command("write_polling_address", 6, Operation::Write)
                 .Codes(hart::WriteCodes({hart::InvalidSelection(),
                                          {12, ResponseCodeType::DataEntryError,
                                           "Invalid mode selection|de|Ungültige Betriebsart"}})),
             0, {{Revision::Unknown, address, address}, {Revision::Hart6, both, both}});
}

}  // namespace

void DescribeIdentity(DeviceDescription& dd) {
  hart::DescribeIdentityVariables(dd);
  hart::DescribeReplyStatus(dd);
  hart::DescribeRangeVariables(dd);
  ValidSince(dd, Revision::Hart5, {"manufacturer_id", "private_label_distributor"});
  ValidSince(dd, Revision::Hart6,
             {"response_preambles", "max_device_variables", "configuration_change_counter",
              "extended_device_status", "long_tag", "loop_current_mode", "analog_channel_flags"});
  ValidSince(dd, Revision::Hart7, {"device_profile"});
  DescribeIdentification(dd);
  hart::DescribeMeasurementCommands(dd);
  DescribeAddress(dd);
  hart::DescribeNameCommands(dd);
  hart::DescribeWriteCommands(dd);
  hart::DescribeDeviceHandling(dd);
}

}  // namespace generic
