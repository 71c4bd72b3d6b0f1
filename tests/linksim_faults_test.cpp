#include <gtest/gtest.h>

#include "linksim/DeviceLink.h"
#include "linksim/EchoLink.h"
#include "support/CommItems.h"
#include "support/FailureOf.h"
#include "support/TestPlatform.h"

// Faults as texts, and what each of them does to an exchange over either link.
namespace HartLinkSim {
namespace {

using namespace test_support;  // NOLINT(google-build-using-namespace)

TEST(Faults, TextFormsThereAndBack) {
  for (const char* text :
       {"latency:30", "no-reply", "no-reply:3", "comm-error:136", "comm-error:136:2", "response:5",
        "response:5:2", "busy", "busy:3", "device-status:128", "truncated", "overlong:1", "corrupt",
        "wrong-command:7"}) {
    EXPECT_EQ(FaultText(ParseFault(text)), text);
  }
  EXPECT_EQ(ParseFault(" comm-error : 0x88 ").value, 0x88);
  EXPECT_EQ(Faults::Parse(" latency:30 ,busy:3").Text(), "latency:30, busy:3");
  EXPECT_TRUE(Faults::Parse("  ").IsEmpty());
}

TEST(Faults, WrongTextsAreExplained) {
  const std::pair<const char*, const char*> cases[] = {
      {"noise", "name is unknown"},     {"", "name is unknown"},
      {"busy:0", "1 to 1000000"},       {"busy:x", "\"x\" is no number"},
      {"response", "response:CODE"},    {"response:128", "1 to 127"},
      {"latency:30:2", "latency:MILL"}, {"busy:1:2", "busy[:COUNT]"},
      {"comm-error:0xG", "1 to 255"},   {"latency:-1", "0 to 600000"},
      {"response:5:", "is no number"}};
  for (const auto& [text, reason] : cases) {
    const std::string told = support::FailureOf([&text = text] { ParseFault(text); }).Description();
    EXPECT_NE(told.find(reason), std::string::npos) << told;
    EXPECT_NE(told.find("wrong-command[:COUNT]"), std::string::npos);
  }
}

TEST(Faults, CountsRunOutOneAfterTheOther) {
  Faults faults = Faults::Parse("no-reply:1, truncated:1, busy:2, response:7:1, latency:5");
  EXPECT_TRUE(faults.Next().noReply);
  EXPECT_EQ(faults.Text(), "truncated:1, busy:2, response:7:1, latency:5");
  const ActiveFaults second = faults.Next();
  EXPECT_TRUE(second.truncated);
  EXPECT_EQ(second.response, 32);
  EXPECT_EQ(faults.Next().response, 32);
  EXPECT_EQ(faults.Next().response, 7);
  EXPECT_EQ(faults.Next().response, 0);
  EXPECT_EQ(faults.Next().latency, platform::Milliseconds{5});
}

struct LinkTest : testing::TestWithParam<const char*>, TestPlatform {
  std::unique_ptr<SimulatedLink> NewLink() const {
    if (GetParam() == std::string("echo")) return std::make_unique<EchoLink>();
    return std::make_unique<DeviceLink>(std::make_shared<EmulatedDevice>());
  }
  // A write of one byte that the reply repeats.
  std::shared_ptr<Exchange> NewExchange() const {
    auto transaction = MakeTransaction({BoundItem("mode", TypeCode::Unsigned, 1)},
                                       {BoundItem("mode", TypeCode::Unsigned, 1)});
    transaction->EditResponseCodes().Add({9, ResponseCodeType::MiscWarning, "a warning here"});
    return MakeExchange(99, transaction, "05", "000005");
  }
};

// "<state> <reply data>" after an exchange, the device status taken out of it where it is the
// device's own.
std::string Outcome(SimulatedLink& link, const std::shared_ptr<Exchange>& exchange) {
  link.Execute(exchange);
  return std::to_string(static_cast<int>(exchange->State())) + " " + exchange->ReplyData();
}

TEST_P(LinkTest, EveryFault) {
  const bool isDevice = GetParam() == std::string("device");
  // The device reports the change of its configuration.
  const std::string clean = isDevice ? "3 004005" : "3 000005";
  struct {
    const char* fault;
    std::string outcome;
  } const cases[] = {
      {"no-reply:1", "4 000005"},
      {"comm-error:0x88:1", "3 8800"},
      {"response:5:1", "3 0500"},
      {"busy:1", "3 2000"},
      {"response:8:1", isDevice ? "3 084005" : "3 080005"},
      {"response:9:1", isDevice ? "3 094005" : "3 090005"},
      {"device-status:0x81:1", isDevice ? "3 00C105" : "3 008105"},
      {"truncated:1", clean.substr(0, 6)},
      {"overlong:1", clean + "A5A5A5A5"},
      {"corrupt:1", clean.substr(0, 6) + "FA"},
      {"wrong-command:1", clean},
  };
  for (const auto& test : cases) {
    const auto link = NewLink();
    link->LinkFaults().Add(test.fault);
    const auto exchange = NewExchange();
    EXPECT_EQ(Outcome(*link, exchange), test.outcome) << test.fault;
    EXPECT_EQ(exchange->CommandNumber() == 99, test.fault != std::string("wrong-command:1"));
    EXPECT_EQ(exchange->Result() == ExchangeResult::ReplyPresent, test.outcome[0] == '3');
    EXPECT_EQ(Outcome(*link, NewExchange()), clean) << "after " << test.fault;
  }
}

TEST_P(LinkTest, LatencyCancelAndTheEndOfTheLink) {
  auto link = NewLink();
  link->LinkFaults().Add("latency:30");
  const auto whole = NewExchange();
  const auto cancelled = NewExchange();
  for (const auto& exchange : {whole, cancelled}) link->Execute(exchange);
  EXPECT_THROW(link->Execute(whole), Failure);
  link->Cancel(cancelled);
  EXPECT_EQ(cancelled->State(), ExchangeState::Cancelled);
  Advance(29);
  EXPECT_EQ(whole->State(), ExchangeState::InProgress);
  Advance(1);
  EXPECT_EQ(whole->State(), ExchangeState::Completed);
  const auto orphaned = NewExchange();
  link->Execute(orphaned);
  link.reset();
  EXPECT_EQ(orphaned->State(), ExchangeState::Cancelled);
  Advance(100);
  EXPECT_EQ(cancelled->ReplyData(), "000005");
}

TEST_P(LinkTest, NamedValues) {
  const auto link = NewLink();
  link->SetResponseType(ZAFHartTypes::ResponseType::NamedValues);
  const auto whole = NewExchange();
  link->Execute(whole);
  EXPECT_EQ(whole->ReplyData().size(), 4U);
  EXPECT_EQ(whole->ResponseInfo().At(TextKey::Of("MODE")), Variant(5));
  EXPECT_TRUE(whole->ResponseInfo().Contains(TextKey::Of("device_status")));
  link->LinkFaults().Add("truncated");
  const auto truncated = NewExchange();
  link->Execute(truncated);
  EXPECT_FALSE(truncated->ResponseInfo().Contains(TextKey::Of("mode")));
}

TEST_P(LinkTest, SettingsOfTheRegistry) {
  platform.Registry().SetValue(kEmulatorSettingsKey, "Latency", "40");
  platform.Registry().SetValue(kEmulatorSettingsKey, "Faults", "busy:2");
  EXPECT_EQ(NewLink()->LinkFaults().Text(), "busy:2, latency:40");
  EXPECT_EQ(DeviceLink().Device(), DeviceLink().Device());
  platform.Registry().SetValue(kEmulatorSettingsKey, "Faults", "noise");
  EXPECT_THROW(NewLink(), Failure);
}

INSTANTIATE_TEST_SUITE_P(Links, LinkTest, testing::Values("echo", "device"),
                         [](const auto& test) { return std::string(test.param); });

TEST(EchoLink, EchoesTheTemplateWithoutTheStatusOfTheReplyBefore) {
  EchoLink link;
  const auto variables = MakeExchange(3, MakeTransaction({}, {}), "", "0580");
  EXPECT_EQ(Outcome(link, variables), "3 0000");
  auto constants = std::make_shared<Transaction>(std::int16_t{0});
  for (const int byte : {0x00, 0x40, 0x12}) {
    constants->Reply().Add(DataItem::Constant(std::int32_t{byte}));
  }
  EXPECT_EQ(Outcome(link, MakeExchange(3, constants, "", "004012")), "3 004012");
  EXPECT_EQ(Outcome(link, MakeExchange(3, std::make_shared<Transaction>(std::int16_t{0}), "", "")),
            "3 0000");
}

}  // namespace
}  // namespace HartLinkSim
