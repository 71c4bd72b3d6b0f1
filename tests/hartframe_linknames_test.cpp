// How the frame application takes links and addresses from the command line.
#include <gmock/gmock.h>

#include "hartframe/link/DeviceAddress.h"
#include "hartframe/link/LinkName.h"
#include "platform/Failure.h"

namespace {

using testing::HasSubstr;

std::string Settings(const std::string& text) {
  std::string all;
  try {
    for (const auto& [name, value] : hartframe::LinkName::Parse(text).settings)
      all += name + "=" + value + " ";
  } catch (const platform::Failure& failure) {
    return failure.Description();
  }
  return all;
}

TEST(HartframeLinkName, HasPlaceAndSettings) {
  const struct {
    const char* text;
    const char* settings;  // or a part of what is wrong
  } cases[] = {
      {"hartip://plant", "host=plant "},
      {"hartip://plant:50/tcp", "host=plant port=50 transport=tcp "},
      {"hartip://[fe80::1%eth0]:7", "host=fe80::1%eth0 port=7 "},
      {"hartip://[::1]/udp?Timeout=5&master=secondary", "host=::1 master=secondary timeout=5"},
      {"modem:/dev/ttyUSB0?baud=2400", "baud=2400 port=/dev/ttyUSB0 "},
      {"hartip://::1", "stands in brackets"},
      {"hartip://[::1", "\"]\""},
      {"hartip:///tcp", "host is missing"},
      {"hartip://plant:", ":PORT"},
      {"modem:", "serial port is missing"},
      {"modem:COM3?baud", "SETTING=VALUE"},
      {"modem:COM3?baud=1&Baud=2", "twice"},
      {"tcp://plant", "a link is echo, device"},
  };
  for (const auto& item : cases) EXPECT_THAT(Settings(item.text), HasSubstr(item.settings));
}

TEST(HartframeAddress, IsAPollingAddressATagOrALongAddress) {
  const auto parsed = [](const std::string& text) -> std::string {
    using ZAFHartTypes::Addressing;
    try {
      const auto address = hartframe::DeviceAddress::Parse(text);
      if (address.addressing == Addressing::Tag) return "tag " + address.tag;
      if (address.addressing == Addressing::LongAddress) return "long " + address.longAddress;
      return "polling " + std::to_string(address.polling);
    } catch (const platform::Failure&) {
      return "none";
    }
  };
  EXPECT_EQ(parsed("63"), "polling 63");
  EXPECT_EQ(parsed("64"), "none");
  EXPECT_EQ(parsed("Gr\u00FC\u00DFe"), "tag Gr\u00FC\u00DFe");
  EXPECT_EQ(parsed("Gr\u00FC\u2192"), "none");
  EXPECT_EQ(parsed("99999999999999999999"), "none");
  EXPECT_EQ(parsed("tag:64"), "tag 64");
  EXPECT_EQ(parsed("26061a2b3c"), "long 26061A2B3C");
  EXPECT_EQ(parsed("1234567890"), "long 1234567890");
  EXPECT_EQ(parsed("0x26061a2b3c"), "long 26061A2B3C");
  EXPECT_EQ(parsed("TT-4711"), "tag TT-4711");
  EXPECT_EQ(parsed("Ä" + std::string(31, 'x')), "tag Ä" + std::string(31, 'x'));
  EXPECT_EQ(parsed(std::string(33, 'x')), "none");
  EXPECT_EQ(parsed(""), "none");
}

}  // namespace
