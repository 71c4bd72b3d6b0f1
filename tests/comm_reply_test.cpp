#include "linksim/EchoLink.h"
#include "support/CommTest.h"
#include "support/FailureOf.h"
#include "support/RecordingControl.h"

// What goes into an exchange, and what a reply does to the variables.
namespace test_support {
namespace {

using support::NumberOfFailure;

std::shared_ptr<Variable> Pv(Variant value = {}) {
  return MakeVariable("pv", TypeCode::Float, 4, std::move(value));
}

TEST_F(CommTest, AReplyFillsItsVariables) {
  const auto pv = Pv();
  pv->SetErrorIndex(128);
  pv->SetErrorText("old");
  const auto sent = MakeVariable("sent", TypeCode::Unsigned, 1, std::int32_t{5});
  sent->SetErrorIndex(1);
  EXPECT_TRUE(Execute({BoundItem(sent)}, {BoundItem(pv), DataItem::Constant(std::int16_t{1})},
                      "00404148000007"));
  EXPECT_EQ(link->requests.back(), "3:05");
  EXPECT_EQ(pv->Value(), Variant(12.5F));
  EXPECT_TRUE(pv->Available());
  EXPECT_EQ(pv->ErrorIndex(), 0);
  EXPECT_EQ(pv->ErrorText(), "");
  EXPECT_EQ(pv->LastReadTime(), platform.GetClock().WallTime());
  EXPECT_EQ(sent->ErrorIndex(), 0);
  EXPECT_EQ(transaction->Reply().Item(4).ConstantValue(), Variant(7));
  EXPECT_EQ(transaction->Reply().Item(2).Value(), Variant(0x40));
  EXPECT_EQ(Status(), "000040");
  EXPECT_EQ(comm->LastData(), ZAFHartTypes::hart::FromHex("4148000007"));
  EXPECT_EQ(comm->LastCommandNumber(), 3);
}

TEST_F(CommTest, StatusOfAReply) {
  const std::string noText;
  struct {
    const char* reply;
    const char* status;
    std::int32_t error;
    std::string text;
  } const cases[] = {
      {"0040", "000040", 0, noText},
      {"8410", "008410", 0x100084, ResText(1100)},
      {"0500", "050000", 0x100005, ResText(1705)},
      {"0C00", "0C0000", 0x10000C, ResText(1350)},  // a code without a text of its own
      {"2100", "210000", 0x100021, ResText(1732)},
      {"0800", "080000", 0x100008, "set to nearest|de|angepasst"},
      {"0900", "090000", 0x100009, ResText(1350)},  // defined without a text
  };
  ASSERT_EQ(ResText(1712), "");
  for (const auto& test : cases) {
    const auto pv = Pv(1.0F);
    transaction = MakeTransaction({}, {});
    transaction->Reply().Add(BoundItem(pv));
    transaction->EditResponseCodes().Add(
        {8, ResponseCodeType::MiscWarning, "set to nearest|de|angepasst"});
    transaction->EditResponseCodes().Add({9, ResponseCodeType::MiscError, ""});
    link->replies = {std::string(test.reply) + (test.error == 0 ? "41480000" : "")};
    EXPECT_TRUE(comm->ExecuteCommand(3, transaction));
    EXPECT_EQ(Status(), test.status);
    EXPECT_EQ(comm->LastResult(), 0);
    EXPECT_EQ(pv->ErrorIndex(), test.error) << test.reply;
    EXPECT_EQ(pv->ErrorText(), test.text) << test.reply;
    EXPECT_EQ(pv->Value(), Variant(test.error == 0 ? 12.5F : 1.0F));
    EXPECT_EQ(pv->Available(), test.error == 0);
  }
}

TEST_F(CommTest, WhatIsNoReplyCountsAsNone) {
  for (const char* reply : {"-", "@004041480000", "00zz", "00", ""}) {
    const auto pv = Pv(1.0F);
    EXPECT_FALSE(Execute({}, {BoundItem(pv)}, reply)) << reply;
    EXPECT_EQ(Status(), "009000");
    EXPECT_EQ(comm->LastResult(), -3);
    EXPECT_EQ(transaction->Reply().Item(1).Value(), Variant(144));
    EXPECT_EQ(transaction->Reply().Item(2).Value(), Variant(0));
    EXPECT_EQ(pv->Value(), Variant(1.0F));
    EXPECT_FALSE(pv->Available());
  }
}

TEST_F(CommTest, BytesThatAreNotThereLeaveTheirVariableAlone) {
  const auto first = MakeVariable("first", TypeCode::Unsigned, 1);
  const auto pv = Pv(1.0F);
  EXPECT_TRUE(Execute({}, {BoundItem(first), BoundItem(pv)}, "000005414800"));
  EXPECT_EQ(first->Value(), Variant(5));
  EXPECT_EQ(first->ErrorIndex(), 0);
  EXPECT_EQ(pv->Value(), Variant(1.0F));
  EXPECT_FALSE(pv->Available());
  EXPECT_EQ(pv->ErrorIndex(), 0x100080);
  EXPECT_EQ(pv->ErrorText(), ResText(1100));

  EXPECT_TRUE(Execute({}, {BoundItem(pv)}, "000041480000A5A5"));  // more than asked for
  EXPECT_EQ(pv->Value(), Variant(12.5F));
  EXPECT_EQ(pv->ErrorIndex(), 0);
}

TEST_F(CommTest, WrittenPendingAndInfoVariables) {
  struct {
    const char* what;
    const char* reply;
    bool stillPending;
    float echo;
  } const cases[] = {{"taken", "00004148000041480000", false, 12.5F},
                     {"refused", "0700", true, 1.0F},
                     {"communication error", "88004148000041480000", true, 1.0F}};
  for (const auto& test : cases) {
    const auto sent = Pv(1.0F);
    sent->SetToBeWritten(true);
    const auto echo = sent->Copy();
    const auto pending = MakeVariable("pending", TypeCode::Float, 4, 2.0F);
    pending->SetToBeWritten(true);
    EXPECT_TRUE(Execute({BoundItem(sent)}, {BoundItem(echo), BoundItem(pending)}, test.reply));
    EXPECT_EQ(sent->ToBeWritten(), test.stillPending) << test.what;
    EXPECT_EQ(echo->ToBeWritten(), test.stillPending) << test.what;
    EXPECT_EQ(echo->Value(), Variant(test.echo)) << test.what;
    EXPECT_EQ(sent->Value(), Variant(1.0F));
    EXPECT_EQ(pending->Value(), Variant(2.0F)) << test.what;
    EXPECT_TRUE(pending->ToBeWritten());
  }
  const auto info = Pv(1.0F);
  info->SetToBeWritten(true);
  DataItem item = BoundItem(info);
  item.SetIsInfo();
  Execute({item}, {item}, "000041480000");
  EXPECT_TRUE(info->ToBeWritten());
  info->SetToBeWritten(false);
  Execute({item}, {item}, "000041480000");
  EXPECT_EQ(info->Value(), Variant(1.0F));
}

TEST_F(CommTest, NamedValues) {
  const auto pv = Pv();
  const auto count = MakeVariable("count", TypeCode::Unsigned, 4);
  const auto wrong = MakeVariable("wrong", TypeCode::Double, 8, 3.0);
  const auto missing = MakeVariable("missing", TypeCode::Double, 8, 3.0);
  link->onExecute = [&] {
    link->last->SetResponseType(ResponseType::NamedValues);
    link->last->ResponseInfo().Add(TextKey::Of("PV"), 12.5);
    link->last->ResponseInfo().Add(TextKey::Of("count"), 4294967295.0);
    link->last->ResponseInfo().Add(TextKey::Of("wrong"), "abc");
  };
  EXPECT_TRUE(
      Execute({}, {BoundItem(pv), BoundItem(count), BoundItem(wrong), BoundItem(missing)}, "0041"));
  EXPECT_EQ(pv->Value().Type(), VariantType::Single);
  EXPECT_EQ(pv->Value(), Variant(12.5F));
  EXPECT_EQ(count->Value(), Variant(std::int32_t{-1}));
  for (const auto& variable : {wrong, missing}) {
    EXPECT_FALSE(variable->Available());
    EXPECT_EQ(variable->ErrorIndex(), 0x100080);
    EXPECT_EQ(variable->Value(), Variant(3.0));
  }
  EXPECT_EQ(transaction->Reply().Item(2).Value(), Variant(0x41));
}

TEST_F(CommTest, WhatCannotBeSentIsNamed) {
  for (const bool inRequest : {true, false}) {
    const DataItemList items{BoundItem("bits", TypeCode::BitString, 2)};
    const Failure failure = support::FailureOf(
        [&] { Execute(inRequest ? items : DataItemList(), inRequest ? DataItemList() : items); });
    EXPECT_NE(failure.Description().find("\"bits\""), std::string::npos);
  }
  EXPECT_THROW(comm->ExecuteCommand(3, nullptr), Failure);
  EXPECT_TRUE(link->requests.empty());
}

TEST_F(CommTest, TheTemplateRepeatsTheLastStatusAndTakesDefaults) {
  const auto pv = Pv();
  pv->SetDefaultValue(2.0F);
  Execute({}, {}, "0541");
  Execute({}, {BoundItem(pv)}, "-");
  EXPECT_EQ(link->last->ReplyData(), "050040000000");  // nothing followed the status
  Execute({}, {BoundItem(pv)}, "054140000000");
  Execute({}, {BoundItem(pv)}, "-");
  EXPECT_EQ(link->last->ReplyData(), "054140000000");
}

TEST_F(CommTest, LiveValuesDrift) {
  struct {
    const char* unit;
    double from, lowest, highest;
  } const cases[] = {{"mA", 12, 12.4, 16.4},
                     {"%", 50, 55, 65},
                     {"bar", 50, 55, 65},
                     {"K|de|mA", 50, 55, 65},
                     {"", 50, 55, 65}};
  for (const auto& test : cases) {
    const auto pv = Pv(static_cast<float>(test.from));
    pv->EditAttributes().SetFlag(VariableFlag::Dynamic, true);
    pv->SetFixedUnitText(test.unit);
    EXPECT_TRUE(Execute({}, {BoundItem(pv)}));
    EXPECT_GE(pv->Value().ToDouble(), test.lowest) << test.unit;
    EXPECT_LE(pv->Value().ToDouble(), test.highest) << test.unit;
    EXPECT_NE(pv->Value(), Variant(test.from));
  }
}

TEST_F(CommTest, LiveValuesThatCannotDrift) {
  const auto live = [](std::shared_ptr<Variable> variable) {
    variable->EditAttributes().SetFlag(VariableFlag::Dynamic, true);
    return variable;
  };
  const auto limited = live(Pv(12.0F));
  limited->EditTypeInfo().SetMaxValue(1, 12.0F);
  limited->SetDefaultValue(3.0F);
  const auto text = live(MakeVariable("text", TypeCode::Ascii, 4, "abc"));
  const auto pending = live(MakeVariable("pending", TypeCode::Float, 4, 5.0F));
  pending->SetToBeWritten(true);
  Execute({}, {BoundItem(limited), BoundItem(text), BoundItem(pending)});
  EXPECT_EQ(limited->Value(), Variant(3.0F));  // the fallback value
  EXPECT_EQ(text->Value(), Variant("abc"));
  EXPECT_EQ(pending->Value(), Variant(5.0F));
  EXPECT_EQ(link->last->ReplyData().substr(20), "40A00000");

  const auto unanswered = live(Pv(12.0F));
  Execute({}, {BoundItem(unanswered)}, "-");
  EXPECT_EQ(unanswered->Value(), Variant(12.0F));
}

TEST_F(CommTest, LinksByClassName) {
  comm->SetLink(nullptr);
  EXPECT_EQ(comm->LinkClass(), "HartLinkSim.EchoLink");
  EXPECT_EQ(NumberOfFailure([&] { Execute({}, {}); }), ErrorNumber::CannotCreateObject);
  platform.Classes().Register("HartLinkSim.EchoLink",
                              [] { return std::make_shared<HartLinkSim::EchoLink>(); });
  const auto pv = Pv(12.5F);
  EXPECT_TRUE(Execute({}, {BoundItem(pv)}));
  EXPECT_EQ(pv->Value(), Variant(12.5F));
  comm->SetLinkClass("Vendor.Modem");
  EXPECT_EQ(NumberOfFailure([&] { Execute({}, {}); }), ErrorNumber::CannotCreateObject);
}

TEST(ErrorDisplay, IsHiddenAgainAndAnErrorMayBeAnswered) {
  for (const auto& [severity, answer, failed, delay, hidden] :
       {std::tuple(ErrorSeverity::Error, -2, true, -1, 0U),
        {ErrorSeverity::Critical, 0, true, 300, 0U},
        {ErrorSeverity::Error, 4, false, -1, 1U},
        {ErrorSeverity::Critical, 5, true, 300, 1U}}) {
    RecordingControl gui;
    gui.messageAnswer = answer;
    EXPECT_EQ(ShowError(gui, severity, 1006, {}), failed);
    EXPECT_EQ(gui.userMessages.back().delay, delay);
    EXPECT_EQ(gui.hiddenMessages.size(), hidden);
  }
}

}  // namespace
}  // namespace test_support
