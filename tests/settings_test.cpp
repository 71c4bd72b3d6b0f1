#include "settings/Settings.h"

#include <gtest/gtest.h>

#include <limits>

#include "settings/Interval.h"
#include "settings/NotFinite.h"
#include "support/TestPlatform.h"

namespace ZAFHartLib {
namespace {

struct SettingsTest : testing::Test, test_support::TestPlatform {
  void Set(const std::string& key, std::string_view name, const std::string& value) {
    platform.Registry().SetValue(key, name, value);
  }
  const std::string dtms_{kDtmsKey};
};

TEST_F(SettingsTest, TakesTheFirstKeyThenTheSecondThenTheDefault) {
  EXPECT_EQ(GetSetting("\\own", dtms_, "Name", "default"), "default");
  Set(dtms_, "Name", "common");
  EXPECT_EQ(GetSetting("\\own", dtms_, "Name", "default"), "common");
  Set("\\own", "name", "own");
  EXPECT_EQ(GetSetting("\\own", dtms_, "Name", "default"), "own");
  EXPECT_EQ(GetNumberSetting("\\own", dtms_, "Name", 7), 7);
  Set("\\own", "Name", "2");
  EXPECT_EQ(GetNumberSetting("\\own", dtms_, "Name", 7), 2);
}

TEST_F(SettingsTest, NamesTheKeyOfADtm) {
  EXPECT_EQ(DtmSettingsKey("Device.V2.dll"), "Device.DDDataModel");
  EXPECT_EQ(DtmSettingsKey("Device"), "DDDataModel");
  EXPECT_EQ(DtmSettingsPath("Device.dll"), dtms_ + "\\Device.DDDataModel");
}

TEST_F(SettingsTest, LoadsShowDDInformationOncePerThread) {
  EXPECT_TRUE(ShowDDInformation());
  Set(dtms_, kShowDDInformation, "0");
  EXPECT_TRUE(ShowDDInformation()) << "loaded before";
  platform::Platform other;
  const platform::PlatformScope scopeOfOther(other);
  other.Registry().SetValue(kDtmsKey, kShowDDInformation, "0");
  EXPECT_FALSE(ShowDDInformation());
  platform::Platform third;
  const platform::PlatformScope scopeOfThird(third);
  third.Registry().SetValue(kDtmsKey, kShowDDInformation, "no");
  EXPECT_TRUE(ShowDDInformation()) << "which is no number";
}

TEST_F(SettingsTest, FindsUseErrorHandlerDirectlyOrOneLevelDeeper) {
  EXPECT_TRUE(UseErrorHandler("Device.dll"));
  Set(dtms_ + "\\Vendor\\Device.dll", kUseErrorHandler, "0");
  Set(dtms_ + "\\Zeta\\Device.dll", kUseErrorHandler, "1");
  EXPECT_FALSE(UseErrorHandler("Device.dll"));
  Set(dtms_ + "\\Device.dll", kUseErrorHandler, "5");
  EXPECT_TRUE(UseErrorHandler("Device.dll"));
}

TEST_F(SettingsTest, IntervalElapses) {
  platform::TickCount last = 0;
  EXPECT_TRUE(IntervalElapsed(last, 1000));
  clock->Advance(platform::Milliseconds{999});
  EXPECT_FALSE(IntervalElapsed(last, 1000));
  clock->Advance(platform::Milliseconds{1});
  EXPECT_TRUE(IntervalElapsed(last, 1000));
  last = std::numeric_limits<platform::TickCount>::max();  // the count has wrapped around since
  EXPECT_TRUE(IntervalElapsed(last, 1000));
  EXPECT_EQ(last, clock->Ticks());
}

TEST_F(SettingsTest, OnlyFloatingPointValuesAreNotFinite) {
  EXPECT_TRUE(IsNotFinite(std::numeric_limits<float>::quiet_NaN()));
  EXPECT_TRUE(IsNotFinite(-std::numeric_limits<double>::infinity()));
  EXPECT_FALSE(IsNotFinite(std::numeric_limits<double>::max()));
  EXPECT_FALSE(IsNotFinite("inf"));
}

}  // namespace
}  // namespace ZAFHartLib
