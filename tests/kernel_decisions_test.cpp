// Decisions that need no kernel: status bytes, response classification, the direct test, arrays'
// reach and refusal texts.

#include <gmock/gmock.h>

#include "kernel/ArrayReach.h"
#include "kernel/DirectTest.h"
#include "kernel/EditedValue.h"
#include "kernel/ResponseClassification.h"
#include "kernel/StatusBytes.h"

namespace {

using namespace ZAFHartTypes;
using namespace ZAFHartLib;

Definition Var(const char* name) {
  return Definition::Define(name, ObjectKind::Variable);
}
DataItem Ref(const char* name) {
  return DataItem::Reference(Var(name));
}

TEST(StatusBytes, BitSevenOfTheFirstByteTellsErrorFlagsFromAResponseCode) {
  EXPECT_EQ(StatusFromReply({5, 0x40}), (CommandStatus{5, 0, 0x40}));
  EXPECT_EQ(StatusFromReply({0x84, 0x01}), (CommandStatus{0, 0x84, 0x01}));
  EXPECT_EQ(StatusFromReply({kNoReplyByte, 0}), (CommandStatus{0, 144, 0}));
}

TEST(ResponseClassification, FollowsTheErrorValueTable) {
  const ResponseCodeList transaction{{8, ResponseCodeType::MiscWarning, "Warn", "Look"},
                                     {32, ResponseCodeType::ModeError, "Busy", "Wait"},
                                     {9, ResponseCodeType::DataEntryError, "Bad", "Fix"}};
  const ResponseCodeList command{{9, ResponseCodeType::Success, "never", "taken"},
                                 {10, ResponseCodeType::Success, "Fine", ""}};
  struct Case {
    CommandStatus status;
    std::int32_t lastResult;
    std::int32_t error;
    const char* message;  // in English
  };
  const Case cases[] = {
      {{0, 0, 0}, 0, 0, ""},
      {{8, 0, 0}, 0, 0, "Warn:Look"},
      {{10, 0, 0}, 0, 0, "Fine:"},
      {{32, 0, 0}, 0, 32, "Busy:Wait"},
      {{9, 0, 0}, 0, 0x100000, "Bad:Fix"},
      {{2, 0, 0}, 0, 2, "Invalid selection"},
      {{33, 0, 0}, 0, 33, "Delayed response initiated"},
      {{8, 0x30, 0}, 0, 0, "Warn:Look"},
      {{0, 0x30, 0}, 0, 0x30, "Framing error"},
      {{0, 0x82, 0}, 0, 0x82, "Buffer overflow"},
      {{0, 0x80, 0}, 0, 1, "Communication error"},
      {{0, 144, 0}, -3, -1, "impossibe to communicate with device"},
      {{0, 0, 0}, -3, -1, "impossibe to communicate with device"},
      {{2, 0, 0}, 7, 2, "Invalid selection"},
  };
  for (const Case& each : cases) {
    const auto verdict = ClassifyResponse(each.status, each.lastResult, transaction, command);
    SCOPED_TRACE(each.message);
    EXPECT_EQ(verdict.error, each.error);
    EXPECT_EQ(verdict.message.substr(0, verdict.message.find('|')), each.message);
  }
  const auto undefined = ClassifyResponse({8, 0, 0}, 0, {}, {});
  EXPECT_EQ(undefined.error, 8);
  EXPECT_TRUE(undefined.message.starts_with("specific error"));
}

TEST(DirectTest, LooksAtReplyAndRequest) {
  Transaction transaction(0);
  transaction.Request() = {Ref("info").SetIsInfo(), Ref("index").SetIsIndex(), Ref("both"),
                           DataItem::Constant(1)};
  transaction.Reply() = {Ref("read"), Ref("hidden").SetIsInfo(), Ref("info"), Ref("index"),
                         Ref("both")};
  const std::map<std::string, std::pair<bool, bool>> expected{
      {"read", {true, false}},  {"hidden", {false, false}}, {"info", {false, false}},
      {"index", {false, true}}, {"both", {true, true}},     {"other", {false, false}}};
  for (const auto& [name, passes] : expected) {
    EXPECT_EQ(ReadsDirectly(transaction, Var(name.c_str())), passes.first) << name;
    EXPECT_EQ(WritesDirectly(transaction, Var(name.c_str())), passes.second) << name;
  }
}

TEST(ArrayReach, FindsItemsInNestedCollectionsThatContainEachOther) {
  const auto collection = [](const char* name) {
    return Definition::Define(name, ObjectKind::Collection);
  };
  auto outer = MakeObject<ItemCollection>("outer");
  outer->Members() = {{"A", Var("a")}, {"INNER", collection("inner")}};
  auto inner = MakeObject<ItemCollection>("inner");
  inner->Members() = {{"OUTER", collection("outer")}, {"B", Var("b")}};
  const CollectionLookup lookup = [&](const Definition& each) {
    return each.Name() == "outer" ? outer : each.Name() == "inner" ? inner : nullptr;
  };
  ItemArray array(Definition::Define("array", ObjectKind::ItemArray));
  array.Elements() = {{7, {}, Var("x")}, {8, {}, collection("outer")}, {9, {}, Var("b")}};
  EXPECT_EQ(FindElementOf(array, Var("x"), lookup), 7);
  EXPECT_EQ(FindElementOf(array, Var("B"), lookup), 8);
  EXPECT_EQ(FindElementOf(array, collection("inner"), lookup), 8);
  EXPECT_EQ(FindElementOf(array, Var("y"), lookup), std::nullopt);
  const auto* wanted = NextWantedElement(array, {Var("x")}, [](const Definition& each) {
    return each.Kind() == ObjectKind::Variable;
  });
  ASSERT_NE(wanted, nullptr);
  EXPECT_EQ(wanted->index, 9);
}

TEST(RefusalText, NamesTheLimitsOfTheRanges) {
  Variable variable("x");
  variable.EditTypeInfo().SetTypeCode(TypeCode::Integer);
  EXPECT_EQ(RefusalText(variable, "en"), "variable cannot be written");
  variable.EditTypeInfo().SetMinValue(1, std::int16_t{0});
  variable.EditTypeInfo().SetMaxValue(1, std::int16_t{10});
  variable.EditTypeInfo().SetMinValue(2, std::int16_t{20});
  EXPECT_EQ(RefusalText(variable, "en"), "variable cannot be written (0 ... 10; 20 ...)");
}

}  // namespace
