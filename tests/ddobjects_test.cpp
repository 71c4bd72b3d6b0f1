#include <gtest/gtest.h>

#include <limits>

#include "ddobjects/Command.h"
#include "ddobjects/ItemArray.h"
#include "ddobjects/KeyedList.h"
#include "ddobjects/Variable.h"
#include "types/Failure.h"

namespace ZAFHartTypes {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

Definition VariableNamed(const char* name) {
  return Definition::Define(name, ObjectKind::Variable);
}

std::shared_ptr<Variable> MakeTyped(TypeCode code, int size) {
  auto variable = MakeObject<Variable>("typed");
  variable->EditTypeInfo().SetTypeCode(code);
  variable->EditTypeInfo().SetSize(size);
  return variable;
}

std::shared_ptr<Variable> SnapshotOf(const std::shared_ptr<Variable>& stored) {
  return stored->ComputeAttributes()->MakeVariable();
}

TEST(Variable, SnapshotCarriesOnlyWhatWasSetOnIt) {
  const auto stored = MakeObject<Variable>("v");
  stored->SetValue(1);
  const auto snapshot = SnapshotOf(stored);
  snapshot->SetUnitText("mA");
  snapshot->SetInReadRecursion(true);
  snapshot->EditWriteDependencies().Add(VariableNamed("unit"));
  stored->SetValue(2);  // written by somebody else meanwhile
  stored->SetToBeWritten(true);

  stored->Assign(*snapshot);

  EXPECT_EQ(stored->Value(), Variant(2));
  EXPECT_TRUE(stored->ToBeWritten());
  EXPECT_EQ(stored->UnitText(), "mA");
  EXPECT_FALSE(stored->InReadRecursion());
  EXPECT_EQ(stored->WriteDependencies().Count(), 0U);
}

TEST(Variable, AttributesOfOneSnapshotNeverReachAnother) {
  const auto stored = MakeObject<Variable>("v");
  stored->SetLabel("static");
  stored->FreezeAttributes();
  const auto one = SnapshotOf(stored);
  const auto other = SnapshotOf(stored);
  EXPECT_TRUE(one->HasSameState(*other));
  one->EditTypeInfo().SetSize(4);
  EXPECT_EQ(other->TypeInfo().Size(), 0);
  EXPECT_FALSE(one->HasSameState(*other));
  other->EditTypeInfo().SetSize(4);
  EXPECT_TRUE(one->HasSameState(*other));  // computed alike
}

struct CheckCase {
  TypeCode code;
  int size;
  std::vector<Variant> accepted;
  std::vector<Variant> refusedWhenStrict;
  std::vector<Variant> refused;
};

TEST(Variable, CheckValueKnowsTypesSizesRangesAndLists) {
  const auto array = MakeObject<ItemArray>("points");
  array->Elements() = {{1, "one", VariableNamed("p1")}, {2, "two", VariableNamed("p2")}};
  using enum TypeCode;
  const CheckCase cases[] = {
      {Float, 4, {20.5}, {21, kNaN}, {1e300, "text", Variant()}},
      {Integer, 1, {}, {-10}, {200}},
      {Integer, 2, {}, {}, {10.5}},
      {Unsigned, 1, {15}, {}, {256}},
      {Unsigned, 3, {}, {}, {16777216}},
      {Unsigned, 4, {}, {-1}, {}},
      {Enumerated, 1, {3}, {4}, {}},
      {BitEnumerated, 1, {0x81}, {0x02}, {}},
      {Index, 1, {2}, {3}, {}},
      {Ascii, 3, {"äöü"}, {}, {"abcd"}},
      {PackedAscii, 8, {"TT-101"}, {}, {"{x}"}},
      {Date, 3, {0x1D027C}, {}, {0x1F027C}},  // the 29th and the 31st of February
      {NotComputed, 0, {}, {}, {Variant::Null()}},
  };
  for (const CheckCase& each : cases) {
    const auto variable = MakeTyped(each.code, each.size);
    TypeInfo& type = variable->EditTypeInfo();
    type.SetRangeCount(1);  // a range without limits is none
    type.SetMinValue(2, 0);
    type.SetMaxValue(2, 20.5);
    type.SetEnumItems(EnumList{{3, "three"}});
    type.SetBitItems(std::make_shared<const BitList>(BitList{{0x01, "low"}, {0x80, "high"}}));
    type.SetIndexedArray(array);
    const auto expect = [&](const std::vector<Variant>& values, bool loose, bool strict) {
      for (const Variant& value : values) {
        EXPECT_EQ(variable->CheckValue(value, false), loose) << value.Describe();
        EXPECT_EQ(variable->CheckValue(value, true), strict) << value.Describe();
      }
    };
    expect(each.accepted, true, true);
    expect(each.refusedWhenStrict, true, false);
    expect(each.refused, false, false);
  }
}

TEST(Variable, SubstituteValueFollowsTheType) {
  const auto number = MakeTyped(TypeCode::Integer, 2);
  number->EditTypeInfo().SetMinValue(1, 10);
  number->EditTypeInfo().SetMaxValue(1, 20);
  number->EditTypeInfo().SetMaxValue(2, 5);
  number->SetValue(15);
  EXPECT_EQ(number->SubstituteValue(), Variant(15));  // inside a range
  number->SetDefaultValue(8);
  number->SetValue(30);
  EXPECT_EQ(number->SubstituteValue(), Variant(5));  // the default, lowered to the limits below it
  number->SetDefaultValue(12);
  EXPECT_EQ(number->SubstituteValue(), Variant(12));  // an acceptable default

  const auto selection = MakeTyped(TypeCode::Enumerated, 1);
  selection->EditTypeInfo().SetEnumItems(EnumList{{9, "first"}, {1, "second"}});
  EXPECT_EQ(selection->SubstituteValue(), Variant(9));
  EXPECT_TRUE(MakeTyped(TypeCode::Ascii, 8)->SubstituteValue().IsEmpty());
}

TEST(Variable, FallbackIsTheLastAcceptedValueThenTheDefault) {
  const auto variable = MakeTyped(TypeCode::Float, 4);
  variable->EditTypeInfo().SetMaxValue(1, 100);
  variable->SetDefaultValue(50);
  EXPECT_EQ(variable->FallbackValue(), Variant(50));
  SnapshotOf(variable)->CheckValue(70, true);
  SnapshotOf(variable)->CheckValue(700, true);
  variable->Copy()->CheckValue(80, true);  // a copy is a variable of its own
  EXPECT_EQ(SnapshotOf(variable)->FallbackValue(), Variant(70));
}

TEST(Command, CopyHasItemsOfItsOwnWithTheirBindings) {
  const auto command = MakeObject<Command>("write_range");
  Transaction& transaction = command->Transactions().Add(0);
  transaction.Request().Add(DataItem::Reference(VariableNamed("range")));
  transaction.Request().Item(1).SetVariable(MakeObject<Variable>("range"));

  const auto copy = command->CommandCopy();
  DataItem& copied = copy->Transactions().Item(0)->Request().Item(1);
  EXPECT_EQ(copied.Variable(), transaction.Request().Item(1).Variable());
  copied.SetIsInfo();
  copied.SetVariable(nullptr);
  EXPECT_NE(transaction.Request().Item(1).Variable(), nullptr);
  EXPECT_FALSE(transaction.Request().Item(1).IsInfo());

  const auto replacement = std::make_shared<Transaction>(std::int16_t{0});
  copy->Transactions().Put(replacement);
  EXPECT_EQ(copy->Transactions().Item(0), replacement);
  EXPECT_EQ(copy->Transactions().Count(), 1U);
  EXPECT_THROW(copy->Transactions().Item(1), Failure);
}

TEST(KeyedList, RefusesADuplicateKeyAndKeepsItsOrder) {
  KeyedList<int> list;
  list.Add(TextKey::Of("Gerät"), 1);
  list.Add(TextKey::Of("b"), 2);
  list.Add(TextKey::Of("c"), 3);
  EXPECT_THROW(list.Add(TextKey::Of("GERÄT"), 4), Failure);
  EXPECT_TRUE(list.Remove(TextKey::Of("b")));
  EXPECT_FALSE(list.Remove(TextKey::Of("b")));
  EXPECT_EQ(list.At(TextKey::Of("C")), 3);
  EXPECT_EQ(list.At(2), 3);
  EXPECT_THROW(list.At(3), Failure);
}

}  // namespace
}  // namespace ZAFHartTypes
