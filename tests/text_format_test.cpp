#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "ddobjects/ItemArray.h"
#include "support/TestPlatform.h"
#include "text/DisplayString.h"
#include "text/NumberMask.h"
#include "text/modDDPrintF.h"
#include "types/Failure.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::PromptValues;
using ZAFHartTypes::TypeCode;
using ZAFHartTypes::TypeInfo;
using ZAFHartTypes::Variant;

struct TextFormatTest : testing::Test, test_support::TestPlatform {};

struct PromptCase {
  Variant value;  // under key 0
  const char* prompt;
  const char* expected;
};

TEST_F(TextFormatTest, FormatsPrompts) {
  const double infinity = std::numeric_limits<double>::infinity();
  const PromptCase cases[] = {
      {"12.5", "Value: %{0} %[L]{0}", "Value: 12.5 PV"},
      {"12.5", "%{0LABEL} %{ 0label }", "PV PV"},
      {"12.5", "%0 and %0LABEL.", "12.5 and PV."},
      {42, "%[05d]{0}", "00042"},
      {42, "%[5d]{0}", "   42"},
      {-5, "%[05d]{0}|%[5i]{0}|%[u]{0}", "-0005|   -5|-5"},
      {255, "%[x]{0} %[X]{0} %[o]{0} %[04x]{0}", "ff FF 377 00ff"},
      {-1, "%[X]{0}", "FFFFFFFF"},
      {-2.5, "%[08.2f]{0}%[8.1f]{0}", "-0002.50    -2.5"},
      {1234.5, "%[.3E]{0} %[.3e]{0}", "1.235E+03 1.235e+03"},
      {1234.5, "%[e]{0} %[12e]{0}", "1.2e+03 1.234500e+03"},
      {1234567.25, "%[7g]{0} %[9g]{0} %[.1g]{0}", "1234567 1234567 1234567.3"},
      {123456789.0, "%[8g]{0} %[8G]{0}", "1.23e+08 1.23E+08"},
      {-infinity, "%[e]{0} %[f]{0}", "IEEE#: -INFINITE IEEE#: -INFINITE"},
      {12.5, "%[5.2lf]{0} %[s]{0} %[n]{0}", "12.5 12.5 12.5"},
      {1, "50%[5d", "50%[5d"},
      {1, "%[5d]{0", "%[5d]{0"},
      {1, "100% of range", "100 of range"},
      {1, "100%% of range", "100% of range"},
      {1, "5%off", "5"},
      {1, "%{9}%{0}", "%{0}"},
      {"text", "a%[d]{0}b", "ab"},
      {"text", "%[x]{0}%{0}", "%{0}"},
      {Variant::Null(), "a%{0}b", "ab"},
      {1, "%[99999999999d]{9}x", "x"},
      {"\xFF", "%[\xC3]{0}\xC3%{0}", "\xFF\xC3\xFF"}};
  for (const PromptCase& entry : cases) {
    PromptValues values;
    values.Set("0", entry.value);
    values.Set("0LABEL", "PV");
    EXPECT_EQ(FormatDDString(entry.prompt, values), entry.expected) << entry.prompt;
  }
}

TEST_F(TextFormatTest, FormatsLongPromptsWithoutRecursion) {
  PromptValues values;
  values.Set("0", "x");
  std::string prompt;
  for (int i = 0; i < 200'000; ++i) prompt += "%{0}";
  EXPECT_EQ(FormatDDString(prompt, values), std::string(200'000, 'x'));
}

TEST_F(TextFormatTest, MakesMasksOfCFormats) {
  const std::pair<const char*, const char*> cases[] = {
      {"8.3e", "###0.000E+00"}, {"2.4f", "0.0000"}, {".2f", "0.00"}, {"g", ""},
      {"8E", "#.#####0E+00"},   {"3.3f", "0.000"},  {"-8.3f", ""},   {"5", ""},
      {"08.3f", "0000.000"},    {"6d", "#####0"},   {"02d", "00"},   {".0f", "0"},
      {"8.3f", "###0.000"},     {"5hi", "####0"}};
  for (const auto& [format, mask] : cases) EXPECT_EQ(CFormatToVBFormat(format), mask) << format;
}

TEST_F(TextFormatTest, LaysNumbersOutByMasks) {
  struct Case {
    double value;
    const char* mask;
    const char* expected;
  };
  const Case cases[] = {{0.5, "#.00", ".50"},
                        {12.5, "#.", "13."},
                        {2.675, "0.00", "2.68"},
                        {99.96, "0.0", "100.0"},
                        {12.34, "000.0", "012.3"},
                        {-0.001, "0.00", "0.00"},
                        {0, "#", ""},
                        {1.5, "0.0##", "1.5"},
                        {1.0, "0.###", "1."},
                        {1e20, "0.0", "100000000000000000000.0"},
                        {1.0 / 3, "0.00000000000000000", "0.33333333333333300"},
                        {9.996, "0.00E+00", "1.00E+01"},
                        {12345.678, "###0.000E+00", "1234.568E+01"},
                        {0.05, "0.0E-00", "5.0E-02"},
                        {1e-100, "0.0E+00", "1.0E-100"},
                        {0, "0.0E+00", "0.0E+00"},
                        {0.1, "", "0.1"}};
  for (const Case& entry : cases) {
    EXPECT_EQ(FormatMask(entry.value, entry.mask), entry.expected) << entry.value << entry.mask;
  }
  platform.Locale().decimalSeparator = ",";
  EXPECT_EQ(FormatMask(1.25, "0.0"), "1,3");
}

TypeInfo TypeOf(TypeCode code, const std::string& format = {}, Variant factor = {}) {
  TypeInfo type;
  type.SetTypeCode(code);
  type.SetDisplayFormat(format);
  type.SetScalingFactor(factor);
  return type;
}

TEST_F(TextFormatTest, ShowsNumbersByTheirType) {
  struct Case {
    Variant value;
    TypeInfo type;
    const char* expected;
  };
  const Case cases[] = {
      {12.345f, TypeOf(TypeCode::Float, "8.2f"), "12.35"},
      {12.345f, TypeOf(TypeCode::Float, "g"), "12.345"},
      {0.1, TypeOf(TypeCode::Double, "", 100), "10"},
      {0.1f, TypeOf(TypeCode::Float, "", std::int16_t{10}), "1"},
      {7, TypeOf(TypeCode::Integer, "3d", 2.5), "18"},
      {-1, TypeOf(TypeCode::Unsigned), "4294967295"},
      {std::nanf(""), TypeOf(TypeCode::Float, "8.3f"), "IEEE#: NOT A NUMBER"},
      {-std::numeric_limits<double>::infinity(), TypeOf(TypeCode::Double), "IEEE#: -INFINITE"},
      {"größe", TypeOf(TypeCode::Password), "*****"},
      {0x180B7E, TypeOf(TypeCode::Date), "2026-11-24"},
      {5, TypeOf(TypeCode::NotComputed), ""}};
  for (const Case& entry : cases) {
    EXPECT_EQ(GetValueDisplayString(entry.value, entry.type), entry.expected);
  }
  EXPECT_THROW(GetValueDisplayString("abc", TypeOf(TypeCode::Float)), ZAFHartTypes::Failure);
  EXPECT_THROW(GetValueDisplayString(0x1F027E, TypeOf(TypeCode::Date)), ZAFHartTypes::Failure);
}

TEST_F(TextFormatTest, ShowsTheDescriptionsOfCodes) {
  TypeInfo type = TypeOf(TypeCode::Enumerated);
  type.SetEnumItems({{1, "one|de|eins"}, {2, "two"}, {2, "again"}});
  EXPECT_EQ(GetValueDisplayString(1, type), "one|de|eins");
  EXPECT_EQ(GetValueDisplayString(2.0, type), "two");
  EXPECT_EQ(GetValueDisplayString(3, type), "3");

  TypeInfo bits = TypeOf(TypeCode::BitEnumerated);
  bits.SetBitItems(std::make_shared<const ZAFHartTypes::BitList>(
      ZAFHartTypes::BitList{{1, "a"}, {6, "b"}, {INT32_MIN, "c"}}));
  EXPECT_EQ(GetValueDisplayString(5, bits), "100");
  EXPECT_EQ(GetValueDisplayString(4294967295.0, bits), "111");

  auto array = ZAFHartTypes::MakeObject<ZAFHartTypes::ItemArray>("sensors");
  array->Elements() = {{4, "four", {}}, {4, "again", {}}};
  TypeInfo index = TypeOf(TypeCode::Index);
  EXPECT_EQ(GetValueDisplayString(4, index), "4");
  index.SetIndexedArray(array);
  EXPECT_EQ(GetValueDisplayString(std::uint8_t{4}, index), "four");
  EXPECT_EQ(GetValueDisplayString(5, index), "5");
}

}  // namespace
}  // namespace ZAFHartLib
