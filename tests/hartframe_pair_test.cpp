// The offline data set on disk beside the online one of a device.
#include "hartframe/changes/Changes.h"
#include "hartframe/dataset/DataSetPair.h"
#include "hartframe/report/TextReport.h"
#include "interfaces/InternalNames.h"
#include "platform/Platform.h"
#include "support/HartframeTest.h"

namespace {

using namespace support;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using ZAFHartTypes::Definition;
using ZAFHartTypes::ObjectKind;

constexpr const char* kShared = "__ZAF__ZAFsingleStorage_RECONNECTRETRYNO";

// --- through the program ---

class HartframePair : public Hartframe {
 protected:
  HartframePair() { EXPECT_EQ(Run({"save", file_}).code, 0); }
  Json RunOn(Arguments arguments, int code) const {
    arguments.insert(arguments.end(), {"--dataset", file_});
    return RunJson(arguments, code);
  }
  std::vector<std::string> Differences() const {
    std::vector<std::string> differences;
    const Json json = RunOn({"compare", "--differences"}, differencesCode_);
    for (const Json& row : json["comparison"])
      differences.push_back(row["name"].get<std::string>() + " " + row["match"].get<std::string>());
    return differences;
  }

  const std::string file_ = (folder_ / "plant.dataset").string();
  int differencesCode_ = 11;
};

// A changed unit converts what has it, in the data set as in the device.
TEST_F(HartframePair, DownloadsWhatDiffers) {
  RunOn({"pair", "range_unit=°C", "upper_range_value=180", "tag=NEW"}, 0);
  EXPECT_EQ(ReadValue("tag"), "TT-4711") << "changed offline only";
  EXPECT_THAT(Differences(), ElementsAre("tag differs", "range_unit differs",
                                         "upper_range_value differs", "lower_range_value differs"));
  const std::string device = TempFolder::Read(device_);
  const std::string mistyped = (folder_ / "plant.dateset").string();
  EXPECT_EQ(Run({"pair", "--download", "--dataset", mistyped}).code, 6) << "no defaults go out";
  EXPECT_EQ(RunOn({"pair", "--download", "--fault", "no-reply"}, 2)["pending"].size(), 3U);
  EXPECT_EQ(TempFolder::Read(device_), device);
  EXPECT_EQ(RunOn({"pair", "--download"}, 0)["writes"].size(), 4U) << "and no more";
  differencesCode_ = 0;
  EXPECT_THAT(Differences(), IsEmpty());
  EXPECT_EQ(ReadValue("upper_range_value"), 180);
  EXPECT_NEAR(ReadValue("lower_range_value").get<double>(), 0, 1e-3);
  EXPECT_THAT(RunOn({"pair", "--download"}, 0)["pending"], IsEmpty());
}

TEST_F(HartframePair, UploadsWhatTheDeviceHasUnlessThatLosesChanges) {
  SetInDevice("descriptor", "descriptor=CHANGED");
  SetInDevice("sensor_type", "sensor_type=128");
  RunOn({"pair", "tag=NEW"}, 0);
  RunOn({"pair", "--upload"}, 7);
  EXPECT_THAT(TempFolder::Read(file_), HasSubstr("tag=aw packed-ascii text NEW"));
  RunOn({"pair", "--upload", "--discard", "long_tag=after"}, 0);
  EXPECT_THAT(TempFolder::Read(file_), AllOf(HasSubstr("descriptor=a- packed-ascii text CHANGED"),
                                             HasSubstr("tag=a- packed-ascii text TT-4711"),
                                             HasSubstr("long_tag=aw ascii text after")));
  EXPECT_THAT(Differences(), ElementsAre("long_tag differs"));

  // The values have come with the device's unit, and are converted from it.
  SetInDevice("range_unit", "range_unit=32");
  SetInDevice("upper_range_value", "upper_range_value=180");
  RunOn({"pair", "--upload", "--discard", "range_unit=K"}, 0);
  EXPECT_THAT(TempFolder::Read(file_), HasSubstr("upper_range_value=a- float double 453.15"));
}

TEST_F(HartframePair, TakesOverChangesThatWaitForTheDevice) {
  Run({"write", "alarm_delay=9", "--fault", "no-reply"});
  RunOn({"pair", "--download"}, 0);
  EXPECT_EQ(ReadValue("alarm_delay"), 9);
  EXPECT_FALSE(std::filesystem::exists(device_ + ".pending"));
}

TEST_F(HartframePair, ComparesWhatIsValidOnOneSideOnly) {
  SetInDevice("linearisation_count", "linearisation_count=5");
  EXPECT_THAT(Differences(),
              ElementsAre("linearisation_count differs", "linearisation_input_6 onlyOffline",
                          "linearisation_output_6 onlyOffline"));
  differencesCode_ = 0;
  const std::string before = TempFolder::Read(file_);
  const Json json = RunOn({"compare", "linearisation_input_*", "tag"}, 11);
  EXPECT_EQ(json["comparison"].size(), 9U);
  EXPECT_EQ(json["comparison"].back()["match"], "notValid");
  RunOn({"compare", "t?g"}, 0);
  RunOn({"compare", "--fault", "no-reply"}, 2);
  EXPECT_EQ(TempFolder::Read(file_), before);
}

TEST_F(HartframePair, NamesAnotherDeviceTypeBeforeAnythingIsWritten) {
  SetInDevice("device_type", "device_type=0xFA11");
  const std::string device = TempFolder::Read(device_);
  const std::string before = TempFolder::Read(file_);
  for (const char* action : {"--download", "--upload", "tag=NEW"}) {
    const Json json = RunOn({"pair", action}, 7);
    EXPECT_THAT(json["problems"][0]["text"].get<std::string>(),
                AllOf(HasSubstr("64016"), HasSubstr("64017")));
  }
  RunOn({"compare"}, 7);
  EXPECT_EQ(TempFolder::Read(device_), device);
  EXPECT_EQ(TempFolder::Read(file_), before);
}

// --- both sides at once ---

class BothSides : public testing::Test {
 protected:
  BothSides() {
    folder_.Write("device.txt", TempFolder::Read(ZAF_DEMO_DEVICE));
    platform_.Classes().LoadPlugin(std::filesystem::path(ZAF_DTM_FOLDER) /
                                   "libsampletemperature.so");
    options_.command = hartframe::CommandKind::Pair;
    options_.dtm = "SampleTemperature";
    options_.deviceFile = folder_ / "device.txt";
    options_.link = hartframe::LinkKind::Device;
    options_.dataSetFile = folder_ / "plant.dataset";
    online_ = std::make_unique<hartframe::Session>(options_, console_, speech_, report_);
    online_->Open();
    pair_ = std::make_unique<hartframe::DataSetPair>(*online_);
  }
  static Definition Named(std::string_view name, ObjectKind kind = ObjectKind::Variable) {
    return Definition::Define(name, kind);
  }

  TempFolder folder_;
  platform::Platform platform_{std::make_unique<platform::ManualClock>()};
  platform::PlatformScope scope_{platform_};
  hartframe::Options options_;
  hartframe::Console console_;
  hartframe::Speech speech_{"en"};
  hartframe::TextReport report_{console_, speech_};
  std::unique_ptr<hartframe::Session> online_;
  std::unique_ptr<hartframe::DataSetPair> pair_;
};

TEST_F(BothSides, ShareSingleStorageVariables) {
  hartframe::Session& offline = pair_->Offline();
  ASSERT_TRUE(pair_->IsShared(Named(kShared)));
  offline.Database().WriteValue(Named(kShared), 4);
  EXPECT_EQ(online_->Variable(Named(kShared))->Value(), ZAFHartTypes::Variant(4));
  online_->Database().WriteValue(Named(kShared), 6);
  EXPECT_EQ(offline.Variable(Named(kShared))->Value(), ZAFHartTypes::Variant(6));
  pair_->File().Keep();

  // The next pair starts with it, on both sides.
  pair_.reset();
  online_ = std::make_unique<hartframe::Session>(options_, console_, speech_, report_);
  online_->Open();
  pair_ = std::make_unique<hartframe::DataSetPair>(*online_);
  EXPECT_EQ(online_->Variable(Named(kShared))->Value(), ZAFHartTypes::Variant(6));
}

TEST_F(BothSides, LeaveAFileToWhoeverChangedItMeanwhile) {
  hartframe::Session& offline = pair_->Offline();
  const auto type = [&](const char* text) {
    offline.Database().WriteValue(Named("tag"), text);
    offline.Database().SetVariableToBeWritten(Named("tag"), true);
  };
  type("FIRST");
  pair_->File().Keep();
  std::string theirs = TempFolder::Read(options_.dataSetFile);
  theirs.replace(theirs.find("FIRST"), 5, "THEIR").erase(theirs.find("Checksum="));
  theirs += "Checksum=none\n";
  folder_.Write("plant.dataset", theirs);
  type("SECOND");
  EXPECT_THROW(pair_->File().Keep(), hartframe::CommandFailure);
  EXPECT_EQ(TempFolder::Read(options_.dataSetFile), theirs);
  type("THIRD");
  pair_->File().Keep();
  EXPECT_EQ(pair_->File().Path(), options_.dataSetFile.string() + ".2");
  EXPECT_THAT(TempFolder::Read(pair_->File().Path()), HasSubstr("THIRD"));
}

TEST_F(BothSides, RefreshTheOnlineDataSetAlone) {
  hartframe::Session& offline = pair_->Offline();
  const auto read = online_->Kernel().ReadVariable(Named("tag"));
  pair_->TakeOver(*read);
  for (hartframe::Session* side : {online_.get(), &offline}) {
    side->Database().WriteValue(Named("descriptor"), "TYPED");
    const auto refresh = Named(ZAFHartTypes::internal_names::kRefreshDataSet, ObjectKind::Method);
    side->Kernel().ExecuteMethod(refresh, side->Kernel().GetMethod(refresh));
  }
  EXPECT_FALSE(online_->Variable(Named("tag"))->Available());
  EXPECT_FALSE(online_->Variable(Named("descriptor"))->ToBeWritten());
  EXPECT_EQ(offline.Variable(Named("tag"))->Value(), ZAFHartTypes::Variant("TT-4711"));
  EXPECT_TRUE(offline.Variable(Named("tag"))->Available());
  EXPECT_TRUE(offline.Variable(Named("descriptor"))->ToBeWritten());
}

}  // namespace
