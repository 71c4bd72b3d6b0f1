#include <gtest/gtest.h>

#include "hart/HexText.h"
#include "hart/StatusBytes.h"
#include "linksim/WireDevice.h"
#include "support/SmallCatalogue.h"
#include "types/Failure.h"

// An emulated device on the wire: frames in, frames out.
namespace HartLinkSim {
namespace {

namespace hart = ZAFHartTypes::hart;
using namespace test_support;  // NOLINT(google-build-using-namespace)

constexpr std::uint8_t kAddress[] = {0x26, 0x05, 0x00, 0x00, 0x07};
constexpr std::uint8_t kBroadcast[] = {0, 0, 0, 0, 0};

struct WireTest : testing::Test {
  std::shared_ptr<EmulatedDevice> device = std::make_shared<EmulatedDevice>();
  std::shared_ptr<SmallCatalogue> catalogue = std::make_shared<SmallCatalogue>();
  std::optional<WireDevice> wire;

  void SetUp() override {
    device->SetValue("device_type", 0xE605);
    device->SetValue("device_id", 7);
    device->SetValue("universal_revision", 5);
    device->SetValue("tag", "PT-1");
    device->SetValue("long_tag", "Kessel ü");
    device->SetValue("level", 0x1234);
    wire.emplace(device, catalogue);
  }

  static hart::LinkFrame Request(int number, const char* data = "",
                                 std::span<const std::uint8_t, 5> address = kAddress) {
    return hart::RequestFrame(static_cast<std::uint16_t>(number),
                              hart::LinkAddress::Unique(address), true, hart::FromHex(data));
  }
  // Status bytes and data of the reply, without an extended number; "" for none.
  std::string Ask(const hart::LinkFrame& request) {
    const auto reply = wire->Answer(hart::DecodeFrame(hart::EncodeFrame(request)));
    if (!reply) return "";
    const hart::DecodedFrame decoded = hart::DecodeFrame(reply->frame);
    EXPECT_TRUE(decoded.IsGood());
    EXPECT_TRUE(hart::Answers(decoded.frame, request));
    return hart::ToHex(decoded.frame.ExchangeData());
  }
};

// What command 0 of the description leaves away, the revision asks for.
TEST_F(WireTest, TellsItsIdentityByRevision) {
  struct Case {
    int revision;
    const char* data;
  };
  for (const auto& [revision, data] :
       std::initializer_list<Case>{{5, "FEE605000501010800000007"},
                                   {6, "FEE605000601010800000007 0500000000"},
                                   {7, "FEE605000701010800000007 0500000000 00E600FA01"},
                                   {0, "FEE605000701010800000007 0500000000 00E600FA01"},
                                   {9, "FEE605000701010800000007 0500000000 00E600FA01"}}) {
    device->SetValue("universal_revision", revision);
    std::string expected = "0000";
    for (const char* digit = data; *digit != 0; ++digit) {
      if (*digit != ' ') expected += *digit;
    }
    EXPECT_EQ(Ask(Request(0)), expected) << revision;
  }
  // With nothing known the address is none of a broadcast.
  WireDevice plain(std::make_shared<EmulatedDevice>(), std::make_shared<SmallCatalogue>());
  EXPECT_NE(plain.Address(), hart::LinkAddress::Unique(kBroadcast));
}

TEST_F(WireTest, AnswersWhenItIsAddressed) {
  const std::string identity = Ask(Request(0));
  const auto polled = [](std::uint8_t address, std::uint16_t number) {
    return hart::RequestFrame(number, hart::LinkAddress::Polling(address), false, {});
  };
  EXPECT_EQ(Ask(polled(0, 0)), identity);
  EXPECT_EQ(Ask(polled(1, 0)), "");
  EXPECT_EQ(Ask(polled(0, 13)), "");  // a short frame asks for the identity only
  EXPECT_EQ(Ask(Request(6, "21")).substr(0, 2), "00");
  EXPECT_EQ(Ask(polled(0, 0)), "");
  EXPECT_NE(Ask(polled(33, 0)), "");

  constexpr std::uint8_t kOther[] = {0x26, 0x05, 0x00, 0x00, 0x08};
  EXPECT_EQ(Ask(Request(13, "", kOther)), "");
  EXPECT_EQ(Ask(Request(13, "", kBroadcast)), "");
  hart::LinkFrame reply = Request(13);
  reply.type = hart::FrameType::Reply;
  reply.data = {0, 0};
  EXPECT_EQ(Ask(reply), "");
}

TEST_F(WireTest, IsFoundByItsTags) {
  const std::string tag = Ask(Request(13)).substr(4);
  const std::string longTag = Ask(Request(20)).substr(4);
  ASSERT_EQ(tag.size(), 12U);
  ASSERT_EQ(longTag.size(), 64U);
  for (const auto& address : {kAddress, kBroadcast}) {
    const std::span<const std::uint8_t, 5> to(address, 5);
    EXPECT_EQ(Ask(Request(11, tag.c_str(), to)).substr(4, 6), "FEE605");
    EXPECT_EQ(Ask(Request(21, longTag.c_str(), to)).substr(4, 6), "FEE605");
    EXPECT_EQ(Ask(Request(11, "000000000000", to)), "");
    EXPECT_EQ(Ask(Request(11, tag.substr(2).c_str(), to)), "");
    EXPECT_EQ(Ask(Request(21, "", to)), "");
  }
  // Asking itself for its tag tells no cold start away.
  device->SetStatus(hart::kColdStart);
  EXPECT_EQ(Ask(Request(11, tag.c_str(), kBroadcast)).substr(0, 4), "0020");
}

TEST_F(WireTest, ChoosesTheTransactionByTheRequest) {
  struct Case {
    int number;
    const char* request;
    const char* reply;
  };
  for (const auto& [number, request, reply] :
       std::initializer_list<Case>{{130, "01", "0000011234"},
                                   {130, "02", "000002414B71820820"},
                                   {130, "015678", "0040015678"},  // as long as it may be
                                   {130, "0156", "0040015678"},    // the surplus of the shorter one
                                   {130, "03", "0240"},            // no such constant
                                   {130, "", "0540"},
                                   {600, "9ABC", "00409ABC"},  // command 31 outside of this
                                   {600, "9A", "0540"},
                                   {601, "", "4040"},
                                   {700, "", "0640"}}) {
    EXPECT_EQ(Ask(Request(number, request)), reply) << number << ' ' << request;
  }
  EXPECT_NE(wire->LastError().find("unsendable"), std::string::npos);
  EXPECT_EQ(catalogue->carriedOut,
            (std::vector<std::string>{"01", "02", "015678", "0156", "9ABC"}));
  // Command 31 without a number.
  hart::LinkFrame extended = Request(600);
  extended.data = {2};
  EXPECT_EQ(Ask(extended), "4040");
}

TEST_F(WireTest, TellsADamagedRequest) {
  const auto answer = [this](hart::LinkFrame frame, hart::FrameFault fault) {
    const auto reply = wire->Answer({fault, std::move(frame)});
    return reply ? hart::ToHex(hart::DecodeFrame(reply->frame).frame.data) : "";
  };
  EXPECT_EQ(answer(Request(6, "05"), hart::FrameFault::CheckByte), "8800");
  EXPECT_EQ(answer(Request(6, "05"), hart::FrameFault::ReceiveError), "C000");
  EXPECT_EQ(answer(Request(6, "05"), hart::FrameFault::TooShort), "");
  EXPECT_EQ(answer(Request(11, "414B71820820", kBroadcast), hart::FrameFault::CheckByte), "");
  EXPECT_EQ(answer({}, hart::FrameFault::Delimiter), "");
  EXPECT_EQ(device->Value("polling_address"), std::nullopt);
}

TEST_F(WireTest, SuffersItsFaults) {
  const auto shown = [this](const char* fault, const hart::LinkFrame& request) {
    wire->LinkFaults().Clear();
    wire->LinkFaults().Add(fault);
    const auto reply = wire->Answer({hart::FrameFault::None, request});
    if (!reply) return std::string("none");
    const hart::DecodedFrame decoded = hart::DecodeFrame(reply->frame);
    return std::to_string(reply->delay.count()) + " " + std::to_string(decoded.frame.command) +
           (decoded.IsGood() ? " " : " bad ") + hart::ToHex(decoded.frame.data);
  };
  const hart::LinkFrame level = Request(130, "01");
  EXPECT_EQ(shown("latency:40", level), "40 130 0000011234");
  EXPECT_EQ(shown("no-reply", level), "none");
  EXPECT_EQ(shown("comm-error:0x90", level), "0 130 9000");
  EXPECT_EQ(shown("busy", level), "0 130 2000");
  EXPECT_EQ(shown("response:33", level), "0 130 2100");
  EXPECT_EQ(shown("response:8", level), "0 130 0800011234");
  EXPECT_EQ(shown("device-status:0x80", level), "0 130 0080011234");
  EXPECT_EQ(shown("truncated", level), "0 130 00000112");
  EXPECT_EQ(shown("overlong", level), "0 130 0000011234A5A5A5A5");
  EXPECT_EQ(shown("corrupt", level), "0 130 0000FEEDCB");
  EXPECT_EQ(shown("wrong-command", level), "0 131 0000011234");
  EXPECT_EQ(shown("bad-check", level), "0 130 bad 0000011234");
  EXPECT_EQ(shown("bad-check:1", Request(0, "", kBroadcast)), "none");
  EXPECT_EQ(wire->LinkFaults().Text(), "bad-check:1");  // it was not for the device
}

TEST_F(WireTest, SendsBurstsInBurstMode) {
  EXPECT_EQ(wire->Burst(), std::nullopt);
  device->SetValue("burst_mode_select", 1);
  device->SetValue("burst_command_number", 13);
  const auto burst = wire->Burst();
  ASSERT_TRUE(burst);
  EXPECT_EQ(hart::ToHex(hart::EncodeFrame(*burst)), "81E6050000070D080000414B71820820B1");
  EXPECT_FALSE(wire->Burst()->primaryMaster);
  const auto reply = wire->Answer({hart::FrameFault::None, Request(13)});
  ASSERT_TRUE(reply);
  EXPECT_TRUE(hart::DecodeFrame(reply->frame).frame.burst);
}

}  // namespace
}  // namespace HartLinkSim
