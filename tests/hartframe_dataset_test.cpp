// Data sets on disk: what a run finds in one and leaves in it.
#include "support/HartframeTest.h"

namespace {

using namespace support;
using testing::AllOf;
using testing::HasSubstr;

class HartframeDataSet : public Hartframe {
 protected:
  // On the data set of the test.
  Result RunOn(Arguments arguments) const {
    arguments.insert(arguments.end(), {"--dataset", file_});
    return Run(arguments);
  }
  std::string File() const { return TempFolder::Read(file_); }
  // Without what differs from one saving to the next.
  static std::string Variables(const std::string& file) {
    const auto begin = file.find("[Variables]");
    return file.substr(begin, file.find("Checksum=") - begin);
  }
  std::string Line(const std::string& name) const {
    const std::string text = File();
    const auto at = text.find("\n" + name + "=") + 1;
    return at == 0 ? "" : text.substr(at, text.find('\n', at) - at);
  }
  // As somebody edits it who knows what he does.
  void Edit(const std::string& from, const std::string& to) const {
    std::string text = File();
    const auto at = text.find(from);
    ASSERT_NE(at, std::string::npos) << from;
    text.replace(at, from.size(), to);
    const auto sum = text.find("Checksum=");
    folder_.Write("plant.dataset", text.substr(0, sum) + "Checksum=none\n");
  }

  void ExpectRefusal(const std::string& explanation, const std::string& where) const {
    const std::string before = File();
    const Result result = RunOn({"write", "tag=NEW"});
    EXPECT_EQ(result.code, 6) << explanation;
    EXPECT_THAT(result.error, AllOf(HasSubstr(file_), HasSubstr(explanation), HasSubstr(where)));
    EXPECT_EQ(File(), before);
  }

  const std::string file_ = (folder_ / "plant.dataset").string();
};

TEST_F(HartframeDataSet, ComesBackExactlyAndGoesIntoAnotherDevice) {
  ASSERT_EQ(Run({"save", file_, "service_note= two\\lines\nÄ|de|b "}).code, 0);
  EXPECT_EQ(Line("service_note"), "service_note=aw ascii text  two\\\\lines\\nÄ|de|b ");
  EXPECT_EQ(Line("sensor_minimum"), "sensor_minimum=a- float single 0x7fa00000");
  const std::string copy = (folder_ / "copy.dataset").string();
  EXPECT_EQ(RunOn({"save", copy, "--no-upload", "--fault", "no-reply"}).code, 0);
  EXPECT_EQ(Variables(TempFolder::Read(copy)), Variables(File()));

  // A value that is not valid in this configuration is kept, too.
  Edit(Line("linearisation_input_7"), "linearisation_input_7=a- float single 12.5");
  SetInDevice("upper_range_value", "upper_range_value=400");
  SetInDevice("tag", "tag=OTHER");
  EXPECT_EQ(RunOn({"download"}).code, 0);
  EXPECT_EQ(ReadValue("upper_range_value").get<float>(), 473.15F);
  EXPECT_EQ(ReadValue("tag"), "TT-4711");
  EXPECT_EQ(ReadValue("service_note"), " two\\lines\nÄ|de|b ");
  EXPECT_EQ(Line("linearisation_input_7"), "linearisation_input_7=a- float single 12.5");
}

TEST_F(HartframeDataSet, KeepsWhatARunLeaves) {
  EXPECT_EQ(RunOn({"list"}).code, 6) << "there is nothing to look at";
  EXPECT_THAT(RunOn({"write", "tag=A"}).out, HasSubstr("New data set"));
  EXPECT_EQ(Line("tag"), "tag=a- packed-ascii text A");
  EXPECT_THAT(Line("long_tag"), HasSubstr("=-- ascii text Temperature transmitter"));
  EXPECT_EQ(RunOn({"download"}).code, 7) << "most values are not known yet";
  EXPECT_EQ(RunOn({"upload"}).code, 0);
  EXPECT_THAT(Line("long_tag"), HasSubstr("=a- ascii text Reactor 3 top"));

  // A run with a silent device takes nothing away, and one that only looks writes nothing.
  const std::string longTag = Line("long_tag");
  EXPECT_EQ(RunOn({"upload", "--fault", "no-reply"}).code, 2);
  EXPECT_EQ(RunOn({"read", "long_tag", "--fault", "no-reply"}).code, 2);
  EXPECT_EQ(Line("long_tag"), longTag);
  const std::string before = File();
  for (const char* command : {"list", "info", "menu"}) RunOn({command});
  EXPECT_EQ(File(), before);
  SetInDevice("long_tag", "long_tag=new");
  EXPECT_THAT(RunOn({"read", "long_tag"}).out, HasSubstr("new")) << "read, not remembered";
  EXPECT_EQ(Line("long_tag"), "long_tag=a- ascii text new");
  EXPECT_EQ(Run({"info", "--dataset", file_, "--json"}).code, 0);
}

// --- what is still to be written ---

TEST_F(HartframeDataSet, HoldsChangesThatCouldNotBeWritten) {
  Run({"write", "alarm_delay=9", "--fault", "no-reply"});
  EXPECT_THAT(PendingFile(), HasSubstr("alarm_delay=9"));
  // The data set takes over what waits in the device's file.
  EXPECT_EQ(RunOn({"write", "damping_value=3", "--fault", "no-reply"}).code, 2);
  EXPECT_EQ(Line("damping_value"), "damping_value=aw float double 3");
  EXPECT_THAT(Line("alarm_delay"), HasSubstr("=aw "));
  EXPECT_FALSE(std::filesystem::exists(device_ + ".pending"));
  EXPECT_EQ(RunOn({"upload"}).code, 7) << "it would lose them";

  // Another value for the same variable: nobody but the user can tell which one holds.
  Run({"write", "damping_value=5", "--fault", "no-reply"});
  const std::string before = File();
  const Result two = RunOn({"write"});
  EXPECT_EQ(two.code, 7);
  EXPECT_THAT(two.error, AllOf(HasSubstr("\"3\""), HasSubstr("\"5\""), HasSubstr(".pending")));
  EXPECT_EQ(File(), before);
  EXPECT_THAT(PendingFile(), HasSubstr("damping_value=5"));
  EXPECT_EQ(RunOn({"write", "damping_value=4"}).code, 0);
  EXPECT_EQ(ReadValue("damping_value"), 4);
  EXPECT_EQ(ReadValue("alarm_delay"), 9);
  EXPECT_EQ(Line("damping_value"), "damping_value=a- float single 4");
}

TEST_F(HartframeDataSet, SavesOverNoChangesThatWait) {
  ASSERT_EQ(Run({"save", file_, "tag=TYPED", "alarm_delay=9"}).code, 0);
  const std::string before = File();
  for (const char* option : {"--no-upload", "tag=ANEW"}) {
    const Result result = Run({"save", file_, option});
    EXPECT_EQ(result.code, 7) << option;
    EXPECT_THAT(result.error, AllOf(HasSubstr("alarm_delay"), HasSubstr("--discard")));
  }
  EXPECT_EQ(Run({"save", file_, "alarm_delay=5", "alarm_delay=6"}).code, 1) << "which one?";
  EXPECT_EQ(File(), before);
  EXPECT_EQ(RunOn({"save", file_, "damping_value=4"}).code, 0) << "they are its own";
  EXPECT_THAT(Line("alarm_delay"), HasSubstr("=aw "));
  EXPECT_EQ(Run({"save", file_, "--discard"}).code, 0);
  EXPECT_THAT(Line("alarm_delay"), HasSubstr("=a- "));
}

TEST_F(HartframeDataSet, ChangesThatAreNotValidWait) {
  ASSERT_EQ(Run({"save", file_, "linearisation_input_6=500", "linearisation_count=5"}).code, 0);
  const Result written = RunOn({"write"});
  EXPECT_EQ(written.code, 4);
  EXPECT_THAT(written.error, HasSubstr("linearisation_input_6 cannot be written: it is not valid"));
  EXPECT_THAT(written.out, HasSubstr("1 of 1 written"));
  EXPECT_THAT(Line("linearisation_input_6"), HasSubstr("w float double 500"));
  EXPECT_THAT(TempFolder::Read(device_), HasSubstr("linearisation_input_6=510"));
  EXPECT_EQ(RunOn({"write", "linearisation_count=6"}).code, 0);
  EXPECT_EQ(ReadValue("linearisation_input_6"), 500);
}

TEST_F(HartframeDataSet, BelongsToADeviceType) {
  ASSERT_EQ(Run({"save", file_, "tag=X"}).code, 0);
  const std::string before = File();
  SetInDevice("device_type", "device_type=0xFA11");
  const std::string device = TempFolder::Read(device_);
  for (const char* command : {"write", "download", "upload"}) {
    const Result result = RunOn({command});
    EXPECT_EQ(result.code, 7) << command;
    EXPECT_THAT(result.error, AllOf(HasSubstr("64016"), HasSubstr("64017")));
  }
  EXPECT_EQ(File(), before);
  EXPECT_EQ(TempFolder::Read(device_), device);
}

// --- files that are refused ---

TEST_F(HartframeDataSet, RefusesBrokenFilesWithoutTouchingThem) {
  struct Case {
    std::string from;
    std::string to;
    std::string explanation;
    std::string where;
  };
  ASSERT_EQ(Run({"save", file_}).code, 0);
  const std::string whole = File();
  const std::vector<Case> cases{
      {"[DataSet]", "[Device]", "no data set file", "line 2"},
      {"Format=1", "Format=2", "formats up to 1", "line 3"},
      {"Class=Sample", "Class=Other", "one of OtherTemperature.DataModel", "line 4"},
      {"ModelVersion=1", "ModelVersion=7", "version 7", "line 6"},
      {"DeviceType=64016", "DeviceType=many", "\"DeviceType=many\"", "line 8"},
      {"\ntag=", "\nno_tag=", "no variable \"no_tag\"", "line 3"},
      {"\ntag=", "\nTAG=-- ascii text x\ntag=", "already", "line 3"},
      {"float single 473.15", "double single 473.15", "of type double here", "upper_range_value"},
      {"float single 473.15", "float text much", "cannot have a value", "upper_range_value"},
      {"float single 473.15", "float single much", "\"single much\"", "upper_range_value"},
      {"int32 64", "int16 64000", "\"int16 64000\"", "line 11"},
      {"span=a- float", "span=? float", "not what belongs here", "\"minimum_span=? float single"},
      {"[Variables]", "tag", "\"tag\"", "line 10"},
  };
  for (const Case& item : cases) {
    folder_.Write("plant.dataset", whole);
    Edit(item.from, item.to);
    ExpectRefusal(item.explanation, item.where);
  }
  folder_.Write("plant.dataset", whole);
  Edit("473.15", "473.16");
  EXPECT_EQ(RunOn({"list"}).code, 0) << "an edited file that says so";
  std::string damaged = whole;
  folder_.Write("plant.dataset", damaged.replace(damaged.find("473.15"), 6, "473.16"));
  ExpectRefusal("does not fit the checksum", "Checksum=none");
  EXPECT_EQ(Run({"save", file_}).code, 6) << "only whole files of this DTM are replaced";
  EXPECT_EQ(File(), damaged);
  EXPECT_EQ(ReadValue("tag"), "TT-4711");
}

TEST_F(HartframeDataSet, RefusesAFileThatIsCutOffAnywhere) {
  ASSERT_EQ(Run({"save", file_}).code, 0);
  const std::string whole = File();
  for (const std::size_t size :
       {whole.size() - 1, whole.size() - 20, whole.size() / 2, 80UL, 0UL}) {
    folder_.Write("plant.dataset", whole.substr(0, size));
    const Result result = RunOn({"list"});
    EXPECT_EQ(result.code, 6) << size;
    EXPECT_THAT(result.error, HasSubstr(size == 0 ? "no data set file" : "cut off here")) << size;
  }
  EXPECT_THAT(RunOn({"list", "--lang", "kt"}).error, HasSubstr("Deetasetto no fairu"));
}

}  // namespace
