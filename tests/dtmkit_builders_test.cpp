#include "dtmkit/DeviceDescription.h"

#include <gmock/gmock.h>

#include "support/FailureOf.h"

namespace {

using namespace ZAFHartTypes;          // NOLINT(google-build-using-namespace)
using namespace ZAFHartTypes::dtmkit;  // NOLINT(google-build-using-namespace)

TEST(VariableBuilder, SetsHandlingRangesAndFlags) {
  DeviceDescription dd;
  dd.Variable("live").Float().Dynamic().ReadOnly().Unit("mA").Format("6.3f");
  dd.Variable("own").Integer(1).Scale(0.5).Range(0, 5).Range({}, 9).Default(4).Local();
  dd.Variable("secret").Password(8).WriteOnly().Actions(ActionList::PreWrite, {"ask", "warn"});
  const auto live = dd.Prototype<Variable>("live");
  EXPECT_TRUE(live->Attributes().IsDynamic());
  EXPECT_FALSE(live->CheckHandling(AccessMode::Write));
  EXPECT_EQ(live->FixedUnitText(), "mA");
  const auto own = dd.Prototype<Variable>("own");
  EXPECT_TRUE(own->Attributes().IsLibraryHeld());
  EXPECT_EQ(own->TypeInfo().RangeCount(), 2);
  EXPECT_TRUE(own->TypeInfo().MinValue(2).IsEmpty());
  EXPECT_EQ(own->TypeInfo().MaxValue(2), Variant(9));
  EXPECT_EQ(own->DefaultValue(), Variant(4));
  EXPECT_EQ(own->Value(), Variant(4)) << "held until something is read";
  const auto secret = dd.Prototype<Variable>("secret");
  EXPECT_FALSE(secret->CheckHandling(AccessMode::Read));
  EXPECT_EQ(secret->PreWriteActions(), (DefinitionList{MethodNamed("ask"), MethodNamed("warn")}));
}

TEST(Catalogue, RefusesWhatContradictsItself) {
  DeviceDescription dd;
  dd.Variable("level").Float();
  dd.Menu("setup");
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[&] { dd.Menu("LEVEL"); }, "\"LEVEL\" twice"},
      {[&] { dd.Variable("slot").Index(1, "nothing"); }, "nothing"},
      {[&] { dd.OnCompute<Variable>("setup", {}); }, "setup"},  // of another kind
      {[&] { dd.Command("read", 9, Operation::Read).Reply({Element("level", "slot")}); }, "level"},
  };
  for (const auto& [action, text] : cases) {
    EXPECT_THAT(support::FailureOf(action).Description(), testing::HasSubstr(text));
  }
}

TEST(CommandBuilder, WritesTransactions) {
  DeviceDescription dd;
  dd.Command("write", 35, Operation::Write)
      .Request({"unit", Masked("high", 0xF0), Masked("low", 0x0F)})
      .Reply({"unit", Byte(250)})
      .Codes(MakeCodes({{0, ResponseCodeType::Success, "Success"}}))
      .Transaction(4)
      .Request({Index("slot"), Info("note")})
      .TransactionCodes({{7, ResponseCodeType::ModeError, "Protected"}});
  const auto command = dd.Prototype<Command>("write");
  EXPECT_EQ(command->Number(), 35);
  EXPECT_EQ(command->Operation(), Operation::Write);
  EXPECT_EQ(command->ResponseCodes().Count(), 1U);
  EXPECT_EQ(command->Transactions().Item(0)->Request().Describe(0), "(unit, high, low)");
  EXPECT_EQ(command->Transactions().Item(0)->Request().Item(2).Mask(), 0xF0U);
  EXPECT_EQ(command->Transactions().Item(0)->Reply().Describe(0),
            "(response_code, device_status, unit, CONSTANT)");
  EXPECT_EQ(command->Transactions().Item(4)->Request().Describe(0), "(slot INDEX INFO, note INFO)");
  EXPECT_EQ(command->Transactions().Item(4)->Reply().Count(), 2U);
  EXPECT_NE(command->Transactions().Item(4)->ResponseCodes().Find(7), nullptr);
  EXPECT_EQ(command->Transactions().Item(0)->ResponseCodes().Find(7), nullptr);
}

}  // namespace
