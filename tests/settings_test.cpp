#include "settings/Settings.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/Platform.h"
#include "settings/GuidText.h"
#include "settings/Interval.h"
#include "settings/NotFinite.h"

namespace ZAFHartLib {
namespace {

class SettingsTest : public testing::Test {
 protected:
  SettingsTest() : scope_(platform_) {}
  void Set(const std::string& key, std::string_view name, const std::string& value) {
    platform_.Registry().SetValue(key, name, value);
  }

  platform::ManualClock* clock_ = new platform::ManualClock;
  platform::Platform platform_{std::unique_ptr<platform::Clock>(clock_)};
  platform::PlatformScope scope_;
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
  const platform::PlatformScope scope(other);
  other.Registry().SetValue(kDtmsKey, kShowDDInformation, "0");
  EXPECT_FALSE(ShowDDInformation());
}

TEST_F(SettingsTest, ShowDDInformationThatIsNoNumberCountsAsTrue) {
  Set(dtms_, kShowDDInformation, "no");
  EXPECT_TRUE(ShowDDInformation());
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
  clock_->Advance(platform::Milliseconds{999});
  EXPECT_FALSE(IntervalElapsed(last, 1000));
  clock_->Advance(platform::Milliseconds{1});
  EXPECT_TRUE(IntervalElapsed(last, 1000));
  last = std::numeric_limits<platform::TickCount>::max();  // the count has wrapped around since
  EXPECT_TRUE(IntervalElapsed(last, 1000));
  EXPECT_EQ(last, clock_->Ticks());
}

TEST_F(SettingsTest, MakesGuidTexts) {
  const std::string bare = NewGuidText(false);
  const std::string braced = NewGuidText(true);
  EXPECT_EQ(bare.size(), 36U);
  EXPECT_EQ(bare.find_first_of("{}"), std::string::npos);
  EXPECT_EQ(braced.size(), 38U);
  EXPECT_TRUE(braced.starts_with('{') && braced.ends_with('}'));
  EXPECT_NE(braced.substr(1, 36), bare);
}

TEST_F(SettingsTest, OnlyFloatingPointValuesAreNotFinite) {
  EXPECT_TRUE(IsNotFinite(std::numeric_limits<float>::quiet_NaN()));
  EXPECT_TRUE(IsNotFinite(-std::numeric_limits<double>::infinity()));
  EXPECT_FALSE(IsNotFinite(std::numeric_limits<double>::max()));
  EXPECT_FALSE(IsNotFinite("inf"));
}

}  // namespace
}  // namespace ZAFHartLib
