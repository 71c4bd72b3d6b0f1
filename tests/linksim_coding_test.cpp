#include <gtest/gtest.h>

#include "linksim/ItemCoding.h"
#include "support/CommItems.h"
#include "support/FailureOf.h"

// Frames and the coding of item lists: values in, bytes out, and back.
namespace HartLinkSim {
namespace {

using namespace test_support;  // NOLINT(google-build-using-namespace)

std::string Encoded(const DataItemList& items) {
  std::vector<Variant> values;
  for (const DataItem& item : items) values.push_back(item.Value());
  return EncodeItems(items, LayOut(items), values).HexText();
}

TEST(ItemCoding, EveryTypeThereAndBack) {
  const Variant unsignedMax{std::int32_t{-2}};
  struct {
    TypeCode code;
    int size;
    Variant value;
    const char* bytes;
    Variant back;
  } const cases[] = {
      {TypeCode::Float, 4, 12.5F, "41480000", 12.5F},
      {TypeCode::Double, 8, -2.0, "C000000000000000", -2.0},
      {TypeCode::Integer, 2, std::int32_t{-2}, "FFFE", std::int32_t{-2}},
      {TypeCode::Integer, 3, 7.5, "000008", std::int32_t{8}},
      {TypeCode::Unsigned, 3, std::int32_t{0x123456}, "123456", std::int32_t{0x123456}},
      {TypeCode::Unsigned, 4, 4294967294.0, "FFFFFFFE", unsignedMax},
      {TypeCode::Unsigned, 4, unsignedMax, "FFFFFFFE", unsignedMax},
      {TypeCode::Enumerated, 1, std::uint8_t{250}, "FA", std::int32_t{250}},
      {TypeCode::BitEnumerated, 2, "258", "0102", std::int32_t{258}},
      {TypeCode::Index, 1, std::int16_t{3}, "03", std::int32_t{3}},
      {TypeCode::Ascii, 4, "\u00B0C", "B0430000", "\u00B0C"},
      {TypeCode::Password, 3, "abc", "616263", "abc"},
      {TypeCode::PackedAscii, 8, "PT-101", "414B71C31820", "PT-101"},
      {TypeCode::Date, 0, std::int32_t{0x180B7E}, "180B7E", std::int32_t{0x180B7E}},
      {TypeCode::Date, 3, std::int32_t{0xFFFFFF}, "FFFFFF", std::int32_t{-1}},
      {TypeCode::Unsigned, 2, {}, "0000", std::int32_t{0}},
  };
  for (const auto& test : cases) {
    const DataItemList items{BoundItem("it", test.code, test.size, test.value)};
    EXPECT_EQ(Encoded(items), test.bytes) << DescribeType(test.code);
    Frame frame;
    frame.SetHexText(test.bytes);
    EXPECT_EQ(ReadItem(frame, items.Item(1), LayOut(items)[0]), test.back);
    frame.SetLength(frame.Length() - 1);
    EXPECT_EQ(ReadItem(frame, items.Item(1), LayOut(items)[0]), std::nullopt);
  }
}

TEST(ItemCoding, MaskedItemsShareGroups) {
  const auto masked = [](const char* name, int value, std::uint32_t mask) {
    return BoundItem(name, TypeCode::Unsigned, 1, Variant(std::int32_t{value}), mask);
  };
  const DataItem next = BoundItem("next", TypeCode::Unsigned, 1, Variant(std::int32_t{0xAA}));
  struct {
    const char* what;
    DataItemList items;
    const char* bytes;
  } const cases[] = {
      {"one byte", {masked("a", 5, 0xF0), masked("b", 3, 0x0F), next}, "53AA"},
      {"two bytes", {masked("a", 0x12, 0xFF00), masked("b", 0x34, 0xFF), next}, "1234AA"},
      {"two groups",
       {masked("a", 1, 0x0F), masked("b", 2, 0xF0), masked("c", 0xC3, 0xFF), next},
       "21C3AA"},
      {"the first mask sets the size",
       {masked("a", 1, 0x01), masked("b", 1, 0x8000), next},
       "01AA"},
      {"an item without a mask ends a group", {masked("a", 3, 0x30), next}, "30AA"},
      {"nothing ends the last group", {next, masked("a", 1, 0x100)}, "AA0100"},
      {"four bytes", {masked("a", 0x7F, 0x7F000000), next}, "7F000000AA"},
  };
  for (const auto& test : cases) EXPECT_EQ(Encoded(test.items), test.bytes) << test.what;

  Frame frame;
  frame.SetHexText("53AA");
  const DataItemList& items = cases[0].items;
  EXPECT_EQ(ReadItem(frame, items.Item(1), LayOut(items)[0]), Variant(5));
  EXPECT_EQ(ReadItem(frame, items.Item(2), LayOut(items)[1]), Variant(3));
}

TEST(ItemCoding, ConstantsAndRepeatedVariables) {
  const auto twice = MakeVariable("Twice", TypeCode::Unsigned, 2, Variant(std::int32_t{0x0102}));
  const DataItemList items{BoundItem(twice), DataItem::Constant(std::int16_t{254}),
                           BoundItem("TWICE", TypeCode::Unsigned, 2, Variant(std::int32_t{9})),
                           BoundItem("end", TypeCode::Unsigned, 1, Variant(std::int32_t{1}))};
  EXPECT_EQ(Encoded(items), "0102FE01");
  Frame frame;
  frame.SetHexText("0A0BFE01");
  EXPECT_EQ(ReadItem(frame, items.Item(3), LayOut(items)[2]), Variant(0x0A0B));
}

TEST(ItemCoding, FailuresNameTheVariable) {
  const Variant big{std::int32_t{300}};
  struct {
    DataItem item;
    const char* parts[3];
  } const cases[] = {
      {BoundItem("v", TypeCode::Unsigned, 1, big), {"\"v\"", "\"300\"", "1 byte"}},
      {BoundItem("v", TypeCode::Enumerated, 1, Variant(std::int32_t{-1})),
       {"\"v\"", "\"-1\"", "fit"}},
      {BoundItem("v", TypeCode::Float, 4, "abc"), {"\"v\"", "Float (0)", "\"abc\""}},
      {BoundItem("v", TypeCode::Double, 8, Variant::Null()), {"\"v\"", "Null", "cannot be sent"}},
      {BoundItem("v", TypeCode::Ascii, 2, "abc"), {"\"v\"", "3 characters", "room for 2"}},
      {BoundItem("v", TypeCode::Unsigned, 8, big), {"\"v\"", "1 to 4 bytes", "8"}},
      {BoundItem("v", TypeCode::Unsigned, 1, big, 0x0F), {"\"v\"", "mask", "\"300\""}},
      {BoundItem("v", TypeCode::BitString, 2), {"\"v\"", "BitString (10)", "no form on the wire"}},
      {BoundItem("v", TypeCode::NotComputed, 4), {"\"v\"", "unknown (-1)", "no form on the wire"}},
      {DataItem::Reference(Definition::Define("v", ObjectKind::Variable)),
       {"\"v\"", "bound", "no variable"}},
      {DataItem::Constant(std::int32_t{300}), {"constant", "\"300\"", "fit"}},
  };
  for (const auto& test : cases) {
    const std::string text = support::FailureOf([&] { Encoded({test.item}); }).Description();
    for (const char* part : test.parts) EXPECT_NE(text.find(part), std::string::npos) << text;
  }
}

}  // namespace
}  // namespace HartLinkSim
