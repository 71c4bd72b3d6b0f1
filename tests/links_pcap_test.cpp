#include <gtest/gtest.h>

#include "hart/HexText.h"
#include "links/CapturingLink.h"
#include "links/IpPacket.h"
#include "links/PcapFile.h"
#include "linksim/EchoLink.h"
#include "platform/Platform.h"
#include "support/TempFolder.h"

// Packet records, byte by byte.
namespace HartLinks {
namespace {

namespace hart = ZAFHartTypes::hart;
using platform::SocketAddress;
using ZAFHartTypes::Exchange;
using ZAFHartTypes::ExchangeState;

const SocketAddress kHost{false, {192, 0, 2, 1}, 0, 49152};
const SocketAddress kDevice{false, {192, 0, 2, 2}, 0, 5094};

TEST(IpPackets, HaveTheirCheckSums) {
  EXPECT_EQ(hart::ToHex(UdpPacket(kHost, kDevice, hart::FromHex("0100020000070008"))),
            "45000024000040004011B6C5C0000201C0000202C00013E60010A4D40100020000070008");
  SocketAddress from{true, {}, 0, 49152}, to{true, {}, 0, 5094};
  from.address[15] = 1;
  to.address[15] = 2;
  EXPECT_EQ(hart::ToHex(TcpPacket(from, to, {1001, 2001}, kTcpPush | kTcpAck,
                                  hart::FromHex("010002000007000855"))),
            "60000000001D06400000000000000000000000000000000100000000000000000000000000000002"
            "C00013E6000003E9000007D15018FFFF78110000010002000007000855");
}

struct PcapTest : testing::Test {
  platform::Platform platform{std::make_unique<platform::ManualClock>()};
  platform::PlatformScope scope{platform};
  support::TempFolder folder;
  std::shared_ptr<PcapFile> file = std::make_shared<PcapFile>(folder / "record.pcap");

  // The packets that the file has now: what follows each record's header of 16 bytes.
  std::vector<std::vector<std::uint8_t>> Packets() const {
    const std::string text = support::TempFolder::Read(folder / "record.pcap");
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    EXPECT_EQ(hart::ToHex(hart::Bytes(bytes).first(24)),
              "D4C3B2A1020004000000000000000000FFFF000065000000");
    std::vector<std::vector<std::uint8_t>> packets;
    for (auto at = bytes.begin() + 24; at != bytes.end();) {
      const auto size = at[8] | at[9] << 8;
      EXPECT_TRUE(std::equal(at + 8, at + 12, at + 12));
      packets.emplace_back(at + 16, at + 16 + size);
      at += 16 + size;
    }
    return packets;
  }
};

TEST_F(PcapTest, TcpConnectionsHaveNumbersThatFit) {
  const Flow flow{Transport::Tcp, kHost, kDevice};
  file->OnOpened(flow, Direction::Sent);
  file->OnBytes(flow, Direction::Sent, hart::FromHex("0102030405"));
  file->OnBytes(flow, Direction::Received, hart::FromHex("0102"));
  file->OnBytes(flow, Direction::Received, hart::FromHex("03"));
  file->OnClosed(flow);
  std::vector<std::string> segments;  // source port, sequence, acknowledgement, flags, bytes
  for (const auto& packet : Packets()) {
    const hart::Bytes tcp = hart::Bytes(packet).subspan(20);
    const auto number = [&](std::size_t at, std::size_t size) {
      return std::to_string(hart::ReadUnsigned(tcp.subspan(at, size)));
    };
    segments.push_back(number(0, 2) + " " + number(4, 4) + " " + number(8, 4) + " " +
                       number(13, 1) + ":" + hart::ToHex(tcp.subspan(20)));
  }
  EXPECT_EQ(segments,
            (std::vector<std::string>{
                "49152 1000 0 2:", "5094 2000 1001 18:", "49152 1001 2001 16:",
                "49152 1001 2001 24:0102030405", "5094 2001 1006 24:0102", "5094 2003 1006 24:03",
                "49152 1006 2004 17:", "5094 2004 1007 17:", "49152 1007 2005 16:"}));
}

struct Ends : ZAFHartTypes::ICommCallback {
  void CommCallback_Finisched(const std::shared_ptr<Exchange>& exchange) override {
    text += std::to_string(static_cast<int>(exchange->State())) + ":" + exchange->ReplyData() + " ";
  }
  std::string text;
};

TEST_F(PcapTest, AnyLinkCanBeRecorded) {
  const auto emulated = std::make_shared<HartLinkSim::EchoLink>();
  const auto ends = std::make_shared<Ends>();
  auto link = CapturingLink::Create(emulated, file);
  const auto execute = [&](int command, const std::string& address) {
    auto exchange = std::make_shared<Exchange>();
    exchange->SetCommandNumber(static_cast<std::int16_t>(command));
    exchange->SetLongAddress(address);
    exchange->SetReplyData("0040AA");
    exchange->SetCallback(ends);
    link->Execute(exchange);
    return exchange;
  };
  execute(800, "2606123456");
  emulated->SetFaults(HartLinkSim::Faults::Parse("no-reply:1, latency:30"));
  link->Cancel(execute(1, ""));
  const auto left = execute(2, "");
  link.reset();
  EXPECT_EQ(ends->text, "3:0040AA 5:0040AA 5:0040AA ");
  EXPECT_EQ(left->State(), ExchangeState::Cancelled);

  std::vector<std::string> messages;
  for (const auto& packet : Packets()) {
    messages.push_back(hart::ToHex(hart::Bytes(packet).subspan(28)));
  }
  EXPECT_EQ(messages,
            (std::vector<std::string>{"010000000001000D010000EA60", "010100000001000D010000EA60",
                                      "0100030000020013"
                                      "82A6061234561F0203206C",
                                      "0101030000020016"
                                      "86A6061234561F0500400320AA85",
                                      "010003000003000D"
                                      "0280010083",
                                      "010003000004000D"
                                      "0280020080"}));
}

}  // namespace
}  // namespace HartLinks
