#include "common/HartMethods.h"
#include "common/HartResponseCodes.h"
#include "generic/Revision.h"

// Layouts of HART command 48 are those of the universal commands (TS20127). A device leaves away
// what comes after its last byte; so there is a transaction for each length that devices stop at.
namespace generic {
namespace {

constexpr int kFirstFurtherByte = 14;  // of the device's own status bytes; 6 to 13 are standardized
constexpr int kLastFurtherByte = 24;

const Bits& NumberedBits() {
  static const Bits bits = MakeBits({{0x01, "Bit 0"},
                                     {0x02, "Bit 1"},
                                     {0x04, "Bit 2"},
                                     {0x08, "Bit 3"},
                                     {0x10, "Bit 4"},
                                     {0x20, "Bit 5"},
                                     {0x40, "Bit 6"},
                                     {0x80, "Bit 7"}});
  return bits;
}

void DescribeOwnByte(DeviceDescription& dd, int number) {
  const std::string text = std::to_string(number);
  hart::DescribeStatusByte(dd, hart::OwnStatus(number),
                           "Device status byte " + text + "|de|Gerätestatusbyte " + text,
                           NumberedBits());
}

std::vector<CommandItem> OwnBytes(int first, int last, std::vector<CommandItem> items) {
  for (int number = first; number <= last; ++number)
    items.emplace_back(hart::OwnStatus(number).c_str());
  return items;
}

std::vector<CommandItem> Joined(std::vector<CommandItem> items,
                                const std::vector<CommandItem>& more) {
  items.insert(items.end(), more.begin(), more.end());
  return items;
}

// HART command 48
void DescribeAdditionalStatus(DeviceDescription& dd) {
  using Items = std::vector<CommandItem>;
  const Items own = OwnBytes(0, hart::kOwnStatusBytes - 1, {});
  const Items mode{"extended_device_status", "device_operating_mode"};
  const Items eight = Joined(own, mode);
  const Items nine = Joined(eight, {"standardized_status_0"});
  const Items fourteen =
      Joined(nine, {"standardized_status_1", "analog_channel_saturated", "standardized_status_2",
                    "standardized_status_3", "analog_channel_fixed"});
  // Before revision 7 six bytes told of 24 analog channels each, and of operating modes before 6.
  const Items channels(6, Byte(0));
  const Items modes(2, Byte(0));
  const auto all = [](const Items& items) {
    return OwnBytes(kFirstFurtherByte, kLastFurtherByte, items);
  };
  CommandBuilder command =
      dd.Command("read_additional_device_status", 48, Operation::Read)
          .Codes(hart::ReadCodes({hart::UpdateFailure(),
                                  {14, ResponseCodeType::MiscWarning,
                                   "Status bytes mismatch|de|Statusbytes abweichend"}}));
  ByRevision(command, 0,
             {{Revision::Unknown, own}, {Revision::Hart6, eight}, {Revision::Hart7, nine}});
  ByRevision(command, 1,
             {{Revision::Unknown, own}, {Revision::Hart6, eight}, {Revision::Hart7, fourteen}});
  ByRevision(command, 2,
             {{Revision::Unknown, all(Joined(Joined(own, modes), channels))},
              {Revision::Hart6, all(Joined(eight, channels))},
              {Revision::Hart7, all(fourteen)}});
}

}  // namespace

void DescribeStatus(DeviceDescription& dd) {
  for (int number = 0; number < hart::kOwnStatusBytes; ++number) DescribeOwnByte(dd, number);
  hart::DescribeStandardizedStatus(dd);
  for (int number = kFirstFurtherByte; number <= kLastFurtherByte; ++number)
    DescribeOwnByte(dd, number);
  ValidSince(dd, Revision::Hart6, {"device_operating_mode"});
  ValidSince(dd, Revision::Hart7,
             {"standardized_status_0", "standardized_status_1", "standardized_status_2",
              "standardized_status_3", "analog_channel_saturated", "analog_channel_fixed"});
  DescribeAdditionalStatus(dd);
}

}  // namespace generic
