#include <gtest/gtest.h>

#include "support/TempFolder.h"
#include "support/TestPlatform.h"
#include "workerdb/CIniCollection.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::Currency;
using ZAFHartTypes::Date;
using ZAFHartTypes::Decimal;
using ZAFHartTypes::KeyedList;
using ZAFHartTypes::TextKey;
using ZAFHartTypes::Variant;
using ZAFHartTypes::VariantType;

class IniCollectionTest : public testing::Test, public test_support::TestPlatform {
 protected:
  KeyedList<Variant> ReadSection(std::string_view content) {
    KeyedList<Variant> values;
    EXPECT_TRUE(CIniCollection().ReadIniFile(folder_.Write("Device.ini", content).string(),
                                             "Default", values));
    return values;
  }

  support::TempFolder folder_;
  const std::string file_ = (folder_ / "Device.ini").string();
};

TEST_F(IniCollectionTest, NamesTheIniFileOfAComponent) {
  const std::pair<const char*, const char*> cases[] = {
      {"Device", "Device.ini"},
      {"Device.dll", "Device.ini"},
      {"C:\\Dtm.V2\\Device.1.dll", "C:\\Dtm.V2\\Device.1.ini"},
      {"C:\\Dtm.V2\\Device", "C:\\Dtm.V2\\Device.ini"},
      {"C:\\Dtms\\", "C:\\Dtms\\$$$.ini"},
      {"/opt/dtm.d/device", "/opt/dtm.d/device.ini"},
      {"", "$$$.ini"}};
  for (const auto& [component, expected] : cases) {
    EXPECT_EQ(CIniCollection().ApplicationToInifileName(component), expected);
  }
}

TEST_F(IniCollectionTest, ReadsBackWhatItWrote) {
  const Variant cases[] = {std::int16_t{-7}, 70000,         1.5f,        -0.25,
                           Currency{12500},  Date{46350.5}, "Größe = 1", true,
                           std::uint8_t{200}};
  for (const char* separator : {".", ","}) {
    platform.Locale().decimalSeparator = separator;
    const CIniCollection ini;
    Variant read;
    for (const Variant& written : cases) {
      ASSERT_TRUE(ini.WriteIniFileTypedEntry(file_, "Default", "Item", written));
      EXPECT_TRUE(ini.ReadIniFileTypedEntry(file_, "Default", "Item", read));
      EXPECT_EQ(read.Type(), written.Type());
      EXPECT_EQ(read, written);
    }
    ASSERT_TRUE(ini.WriteIniFileTypedEntry(file_, "Default", "Single", Decimal{15, 1}));
    EXPECT_TRUE(ini.ReadIniFileTypedEntry(file_, "Default", "Single", read));
    EXPECT_EQ(read.Type(), VariantType::Single);
    EXPECT_EQ(read, Variant(1.5f));
  }
  EXPECT_NE(support::TempFolder::Read(file_).find("Item.TYPE=17"), std::string::npos);
}

TEST_F(IniCollectionTest, RefusesWhatHasNoText) {
  const CIniCollection ini;
  EXPECT_FALSE(ini.WriteIniFileTypedEntry(file_, "Default", "Item", Variant::Null()));
  EXPECT_FALSE(ini.WriteIniFileTypedEntry(file_, "Default", "Item", std::vector<Variant>{1}));
  EXPECT_FALSE(ini.WriteIniFileTypedEntry(file_, "Default", "Item", "two\nlines"));
  EXPECT_FALSE(ini.WriteIniFileTypedEntry((folder_ / "none/x.ini").string(), "Default", "I", 1));
  Variant value = 5;
  EXPECT_FALSE(ini.ReadIniFileTypedEntry(file_, "Default", "Missing", value));
  EXPECT_TRUE(value.IsEmpty());
  KeyedList<Variant> values;
  EXPECT_TRUE(ini.ReadIniFile((folder_ / "none.ini").string(), "Default", values));
  EXPECT_TRUE(values.IsEmpty());
}

TEST_F(IniCollectionTest, ConvertsTextsByType) {
  struct Case {
    const char* type;
    const char* text;
    Variant expected;
  };
  const Case cases[] = {{"3", "12", 12},        {"5", "1,5", 1.5},
                        {"14", "1,5", 1.5f},    {"2", "70000", {}},
                        {"17", "x", {}},        {"11", "True", true},
                        {"8", "1,5", "1,5"},    {"3", "", std::int16_t{0}},
                        {"8", "", ""},          {"11", "", false},
                        {"12", "", {}},         {"12", "5", {}},
                        {"0", "5", {}},         {"-1", "5", {}},
                        {"x", "5", {}},         {"7", "1e9", {}},
                        {"7", "", Date{36526}}, {"6", "1.2", Currency{12000}}};
  for (const Case& entry : cases) {
    const auto values = ReadSection(std::string("[default]\nLevel.TYPE=") + entry.type +
                                    "\nLevel.Value=" + entry.text + "\n");
    ASSERT_EQ(values.Count(), 1U);
    EXPECT_EQ(values.At(1).Type(), entry.expected.Type()) << entry.type << entry.text;
    EXPECT_EQ(values.At(1), entry.expected) << entry.type << entry.text;
  }
}

TEST_F(IniCollectionTest, ReadsASectionInItsOrder) {
  const auto values = ReadSection(
      "[Other]\nA.TYPE=3\nA.Value=1\n"
      "[Default]\n; comment\nB.Value=2\nB.TYPE=3\n\nplain=7\nC.TYPE=8\nA.Value=no type\n"
      "A.TYPE=8\nb.TYPE=3\nb.Value=9\n");
  ASSERT_EQ(values.Count(), 2U);
  EXPECT_EQ(values.At(1), Variant(2));
  EXPECT_EQ(values.At(2), Variant("no type"));
  EXPECT_FALSE(values.Contains(TextKey::Of("C"))) << "it has no value line";
}

// Where one name is the end of another one, the first line that holds the key text counts.
TEST_F(IniCollectionTest, FindsTheFirstOccurrenceOfAKeyText) {
  const auto values =
      ReadSection("[Default]\nLowLevel.TYPE=3\nLowLevel.Value=1\nLevel.TYPE=8\nLevel.Value=2\n");
  ASSERT_EQ(values.Count(), 2U);
  EXPECT_EQ(values.At(TextKey::Of("Level")).Type(), VariantType::Int32);
  EXPECT_EQ(values.At(TextKey::Of("Level")), Variant(1));
}

}  // namespace
}  // namespace ZAFHartLib
