#include "common/HartResponseCodes.h"
#include "generic/Revision.h"

// Sensor, range and loop current. hart::DescribeRangeVariables has their variables.
namespace generic {
namespace {

// HART command 15. The distributor's place is reserved since revision 7, which has him in command
// 0.
void DescribeDeviceInformation(DeviceDescription& dd) {
  using Items = std::vector<CommandItem>;
  const auto ending = [](const Items& end) {
    Items items{"alarm_selection",   "transfer_function", "range_unit",   "upper_range_value",
                "lower_range_value", "damping_value",     "write_protect"};
    items.insert(items.end(), end.begin(), end.end());
    return items;
  };
  const CommandItem distributor = Masked("private_label_distributor", 0xFF);
  ByRevision(dd.Command("read_device_information", 15, Operation::Read).Codes(hart::ReadCodes()), 0,
             {{Revision::Unknown, ending({})},
              {Revision::Hart5, ending({distributor})},
              {Revision::Hart6, ending({distributor, "analog_channel_flags"})},
              {Revision::Hart7, ending({Byte(250), "analog_channel_flags"})}});
}

}  // namespace

void DescribeOutput(DeviceDescription& dd) {
  dd.Known("alarm_selection").ReadOnly();
  hart::DescribeLoopVariables(dd);
  DescribeDeviceInformation(dd);
  hart::DescribeRangeCommands(dd);
  hart::DescribeLoopCurrentCommands(dd);
  // HART command 47
  dd.Command("write_pv_transfer_function_code", 47, Operation::Write)
      .Request({"transfer_function"})
      .Reply({"transfer_function"})
      .Codes(hart::WriteCodes({hart::InvalidSelection()}));
}

}  // namespace generic
