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

TEST(Variable, EveryComputationStartsFromTheFrozenAttributes) {
  const auto stored = MakeObject<Variable>("v");
  stored->EditActions(ActionList::PreRead).Add(Definition::Define("static", ObjectKind::Method));
  stored->FreezeAttributes();
  for (int computation = 0; computation < 3; ++computation) {
    const auto snapshot = SnapshotOf(stored);
    snapshot->BeginAttributeComputation();
    snapshot->EditActions(ActionList::PreRead)
        .Add(Definition::Define("computed", ObjectKind::Method));
    stored->Assign(*snapshot);
    EXPECT_EQ(stored->PreReadActions().Count(), 2U);
  }
}

struct CheckCase {
  TypeCode code;
  int size;
  Variant value;
  bool loose;
  bool strict;
};

TEST(Variable, CheckValueKnowsTypesSizesRangesAndLists) {
  const auto array = MakeObject<ItemArray>("points");
  array->Elements() = {{1, "one", VariableNamed("p1")}, {2, "two", VariableNamed("p2")}};
  const CheckCase cases[] = {
      {TypeCode::Float, 4, 20.5, true, true},
      {TypeCode::Float, 4, 21, true, false},
      {TypeCode::Float, 4, kNaN, true, false},
      {TypeCode::Float, 4, 1e300, false, false},
      {TypeCode::Float, 4, "text", false, false},
      {TypeCode::Float, 4, Variant(), false, false},
      {TypeCode::Integer, 1, -10, true, false},
      {TypeCode::Integer, 1, 200, false, false},
      {TypeCode::Integer, 2, 10.5, false, false},
      {TypeCode::Unsigned, 1, 15, true, true},
      {TypeCode::Unsigned, 1, 256, false, false},
      {TypeCode::Unsigned, 4, Variant(-1), true, false},
      {TypeCode::Unsigned, 3, 16777216, false, false},
      {TypeCode::Enumerated, 1, 3, true, true},
      {TypeCode::Enumerated, 1, 4, true, false},
      {TypeCode::BitEnumerated, 1, 0x81, true, true},
      {TypeCode::BitEnumerated, 1, 0x02, true, false},
      {TypeCode::Index, 1, 2, true, true},
      {TypeCode::Index, 1, 3, true, false},
      {TypeCode::Ascii, 3, "äöü", true, true},
      {TypeCode::Ascii, 3, "abcd", false, false},
      {TypeCode::PackedAscii, 8, "TT-101", true, true},
      {TypeCode::PackedAscii, 8, "{x}", false, false},
      {TypeCode::Date, 3, (29 << 16) | (2 << 8) | 124, true, true},
      {TypeCode::Date, 3, (31 << 16) | (2 << 8) | 124, false, false},
      {TypeCode::NotComputed, 0, Variant::Null(), false, false},
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
    const std::string name =
        std::to_string(static_cast<int>(each.code)) + " " + each.value.Describe();
    EXPECT_EQ(variable->CheckValue(each.value, false), each.loose) << name;
    EXPECT_EQ(variable->CheckValue(each.value, true), each.strict) << name;
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
