#include "dtmkit/DeviceDescription.h"

#include <gtest/gtest.h>

namespace {

using namespace ZAFHartTypes;          // NOLINT(google-build-using-namespace)
using namespace ZAFHartTypes::dtmkit;  // NOLINT(google-build-using-namespace)

std::string DescriptionOfFailure(const std::function<void()>& action) {
  try {
    action();
  } catch (const Failure& failure) {
    return failure.Description();
  }
  return "no failure";
}

TEST(VariableBuilder, SetsTypes) {
  DeviceDescription dd;
  dd.Array("points").Variable(3, "a", "Third|de|Dritter");
  struct Row {
    const char* name;
    TypeCode code;
    std::int32_t size;
    std::int32_t wireSize;
  };
  const auto enums = MakeEnums({{3, "Three"}, {250, "Not used"}, {7, "Seven"}});
  dd.Variable("float").Float();
  dd.Variable("double").Double();
  dd.Variable("integer").Integer(2);
  dd.Variable("unsigned").Unsigned(3);
  dd.Variable("enumerated").Enumerated(2, enums);
  dd.Variable("bits").BitEnumerated(1, MakeBits({{0x80, "Malfunction"}}));
  dd.Variable("index").Index(1, "points");
  dd.Variable("ascii").Ascii(32);
  dd.Variable("packed").PackedAscii(8);
  dd.Variable("date").Date();
  for (const Row& row : {Row{"float", TypeCode::Float, 4, 4},
                         {"double", TypeCode::Double, 8, 8},
                         {"integer", TypeCode::Integer, 2, 2},
                         {"unsigned", TypeCode::Unsigned, 3, 3},
                         {"enumerated", TypeCode::Enumerated, 2, 2},
                         {"bits", TypeCode::BitEnumerated, 1, 1},
                         {"index", TypeCode::Index, 1, 1},
                         {"ascii", TypeCode::Ascii, 32, 32},
                         {"packed", TypeCode::PackedAscii, 8, 6},
                         {"date", TypeCode::Date, 3, 3}}) {
    const TypeInfo& type = dd.Prototype<Variable>(row.name)->TypeInfo();
    EXPECT_EQ(type.TypeCode(), row.code) << row.name;
    EXPECT_EQ(type.Size(), row.size) << row.name;
    EXPECT_EQ(type.WireSize(), row.wireSize) << row.name;
  }
  EXPECT_EQ(dd.Prototype<Variable>("enumerated")->TypeInfo().MaxEnumValue(), 250);
  EXPECT_EQ(dd.Prototype<Variable>("index")->TypeInfo().IndexedArray()->Elements()[0].index, 3);
}

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
  EXPECT_NE(DescriptionOfFailure([&] { dd.Menu("LEVEL"); }).find("\"LEVEL\" twice"),
            std::string::npos);
  EXPECT_NE(DescriptionOfFailure([&] { dd.Variable("slot").Index(1, "nothing"); }).find("nothing"),
            std::string::npos);
  EXPECT_NE(DescriptionOfFailure([&] { dd.OnCompute<Variable>("setup", {}); }).find("setup"),
            std::string::npos)
      << "another kind";
  EXPECT_NE(DescriptionOfFailure([&] {
              dd.Command("read", 9, Operation::Read).Reply({Element("level", "slot")});
            }).find("level"),
            std::string::npos);
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

TEST(MenuBuilder, KeepsOrderAndQualifiers) {
  DeviceDescription dd;
  dd.Menu("root").Menus({"setup"}).ReadOnlyVariables({"level"}).Methods({"test"}).Variables(
      {"tag"});
  const MenuItems& items = dd.Prototype<Menu>("root")->Items();
  ASSERT_EQ(items.Count(), 4U);
  EXPECT_EQ(items.Item(1).Definition().Kind(), ObjectKind::Menu);
  EXPECT_FALSE(items.Item(1).Qualifiers().Qualifier(MenuQualifier::DisplayValue));
  EXPECT_TRUE(items.Item(2).IsReadOnly());
  EXPECT_TRUE(items.Item(2).Qualifiers().Qualifier(MenuQualifier::DisplayValue));
  EXPECT_EQ(items.Item(3).Definition().Kind(), ObjectKind::Method);
  EXPECT_FALSE(items.Item(4).IsReadOnly());
}

}  // namespace
