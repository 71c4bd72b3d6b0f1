#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/FailureOf.h"
#include "support/TestPlatform.h"
#include "types/Variant.h"

namespace ZAFHartTypes {
namespace {

using support::NumberOfFailure;

struct VariantTest : testing::Test, test_support::TestPlatform {};

TEST_F(VariantTest, RoundsHalvesToTheEvenNeighbour) {
  const std::pair<Variant, std::int32_t> cases[] = {
      {2.5, 2},      {3.5, 4},         {-2.5, -2}, {-0.5, 0},      {"2.5", 2}, {" 7 ", 7},
      {"1E3", 1000}, {"-1.5e+1", -15}, {true, -1}, {Variant(), 0}, {".5", 0},  {2.4999f, 2}};
  for (const auto& [value, expected] : cases) {
    EXPECT_EQ(value.ToLong(), expected) << value.Describe();
  }
  EXPECT_EQ(Variant(Currency{25000}).ToLong(), 2);
  EXPECT_EQ(Variant(Decimal{35, 1}).ToLong(), 4);
}

TEST_F(VariantTest, RaisesOverflowAndTypeMismatch) {
  void (*const overflow[])() = {
      [] { (void)Variant(32767.5).ToShort(); },     [] { (void)Variant(2147483647.5).ToLong(); },
      [] { (void)Variant(-1).ToByte(); },           [] { (void)Variant("1e400").ToDouble(); },
      [] { (void)Variant(1e39).ToSingle(); },       [] { (void)Variant(1e16).ToCurrency(); },
      [] { (void)Variant(std::nan("")).ToLong(); }, [] { (void)Variant(4294967296.0).ToBits32(); },
      [] { (void)Variant(3e6).ToDate(); }};
  for (const auto& action : overflow) EXPECT_EQ(NumberOfFailure(action), ErrorNumber::Overflow);

  for (const char* text : {"", "abc", "1,5", "&H10", "1 2", "inf", "nan", "1e", ".", "-"}) {
    EXPECT_EQ(NumberOfFailure([&] { (void)Variant(text).ToDouble(); }), ErrorNumber::TypeMismatch)
        << text;
  }
  EXPECT_EQ(NumberOfFailure([] { (void)Variant::Null().ToText(); }), ErrorNumber::TypeMismatch);
  EXPECT_EQ(NumberOfFailure([] { (void)Variant(1).Items(); }), ErrorNumber::TypeMismatch);
}

TEST_F(VariantTest, KeepsTheLimitsOfEachType) {
  EXPECT_EQ(Variant(32767.4).ToShort(), 32767);
  EXPECT_EQ(Variant("-2147483648").ToLong(), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(Variant(255.5 - 0.25).ToByte(), 255);
  EXPECT_EQ(Variant(true).ToByte(), 255);
  EXPECT_EQ(Variant("1e-400").ToDouble(), 0);
  EXPECT_EQ(Variant(-1).ToBits32(), 0xFFFFFFFFU);
  EXPECT_EQ(Variant(4294967295.0).ToBits32(), 0xFFFFFFFFU);
  EXPECT_TRUE(std::isinf(Variant(std::numeric_limits<double>::infinity()).ToSingle()));
  EXPECT_TRUE(Variant("TRUE").ToBoolean());
  EXPECT_FALSE(Variant("0").ToBoolean());
}

TEST_F(VariantTest, WritesNumbersAsTextLikeTheAutomationRunTime) {
  const std::pair<Variant, const char*> numbers[] = {
      {12.5, "12.5"}, {0.1f, "0.1"},     {1e15, "1E+15"}, {0.0001, "0.0001"}, {0.00001, "1E-05"},
      {-0.0, "0"},    {1e100, "1E+100"}, {true, "True"},  {false, "False"},   {Variant(), ""}};
  const std::pair<Variant, const char*> others[] = {{1.0 / 3, "0.333333333333333"},
                                                    {1.0f / 3, "0.3333333"},
                                                    {123456789012345.0, "123456789012345"},
                                                    {Currency{-12500}, "-1.25"},
                                                    {Decimal{7, 3}, "0.007"},
                                                    {std::uint8_t{9}, "9"},
                                                    {Date{46350}, "2026-11-24"},
                                                    {Date{46350.75}, "2026-11-24 18:00:00"},
                                                    {Date{0.5}, "12:00:00"},
                                                    {Date{-1.25}, "1899-12-29 06:00:00"}};
  for (const auto& [value, expected] : numbers) EXPECT_EQ(value.ToText(), expected);
  for (const auto& [value, expected] : others) EXPECT_EQ(value.ToText(), expected);
  EXPECT_EQ(Variant(std::vector<Variant>{1, 2, 3}).Describe(), "Array(3)");
  EXPECT_EQ(Variant::Null().Describe(), "Null");
  EXPECT_EQ(Variant(Date{1e9}).Describe(), "1000000000");
}

TEST_F(VariantTest, UsesTheUsersSeparatorAndShortDate) {
  platform.Locale().decimalSeparator = ",";
  platform.Locale().shortDateFormat = "dd.MM.yyyy";
  EXPECT_EQ(Variant(12.5).ToText(), "12,5");
  EXPECT_EQ(Variant("12,5").ToDouble(), 12.5);
  EXPECT_EQ(NumberOfFailure([] { (void)Variant("12.5").ToDouble(); }), ErrorNumber::TypeMismatch);
  EXPECT_EQ(Variant("24.11.2026").ToDate().serial, 46350);
  EXPECT_EQ(Variant("24.11.26").ToDate().serial, 46350);
  EXPECT_EQ(Variant("2026-11-24 18:00").ToDate().serial, 46350.75);
  EXPECT_EQ(Variant(Date{46350}).ToText(), "24.11.2026");
  for (const char* text : {"31.02.2026", "24.11", "2026-11-24 25:00", "2026-11-24x"}) {
    EXPECT_EQ(NumberOfFailure([&] { (void)Variant(text).ToDate(); }), ErrorNumber::TypeMismatch)
        << text;
  }
}

TEST_F(VariantTest, ComparesByValue) {
  const std::pair<Variant, Variant> same[] = {
      {std::int16_t{3}, 3.0},
      {3, std::uint8_t{3}},
      {" 2.50 ", 2.5},
      {"True", true},
      {Variant(), ""},
      {Variant(), 0.0},
      {Variant(), false},
      {Currency{15000}, 1.5},
      {Date{46350}, "2026-11-24"},
      {Decimal{150, 2}, Decimal{15, 1}},
      {Variant::Null(), Variant::Null()},
      {std::vector<Variant>{1, "a"}, std::vector<Variant>{1.0, "a"}}};
  for (const auto& [a, b] : same) {
    EXPECT_TRUE(a == b && b == a) << a.Describe() << " " << b.Describe();
  }
  const std::pair<Variant, Variant> different[] = {
      {"3", 4},
      {"abc", 0},
      {"a", "A"},
      {Variant::Null(), Variant()},
      {0.1f, 0.1},
      {std::nan(""), std::nan("")},
      {std::vector<Variant>{1}, std::vector<Variant>{1, 2}},
      {"", 0},
      {"1e999", 1.0},
      {std::vector<Variant>{}, Variant()}};
  for (const auto& [a, b] : different) {
    EXPECT_FALSE(a == b || b == a) << a.Describe() << " " << b.Describe();
  }
}

}  // namespace
}  // namespace ZAFHartTypes
