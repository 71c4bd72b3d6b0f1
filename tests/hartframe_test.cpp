#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <nlohmann/json.hpp>

#include "support/TempFolder.h"

// The built program as a script uses it: arguments in, output and exit code out.
namespace {

using testing::HasSubstr;
using testing::Not;

struct Outcome {
  int code = -1;
  std::string output;  // both streams
};

Outcome Shell(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen((command + " 2>&1").c_str(), "r"),
                                                   [](FILE*) { return 0; });
  Outcome outcome;
  std::array<char, 4096> buffer{};
  while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), pipe.get())) {
    outcome.output.append(buffer.data(), count);
  }
  const int status = pclose(pipe.get());
  outcome.code = WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + status;
  return outcome;
}

class Hartframe : public testing::Test {
 protected:
  void SetUp() override { std::filesystem::copy_file(ZAF_DEMO_DEVICE, Device()); }
  std::filesystem::path Device() const { return folder_ / "device.txt"; }
  std::filesystem::path Pending() const { return folder_ / "device.txt.pending"; }
  // `before` stands in front of the program: "timeout …", say.
  Outcome Run(const std::string& arguments, const std::string& before = {}) const {
    const std::string common = " --dtm SampleTemperature --device \"" + Device().string() + "\" ";
    const std::string language = arguments.find("--lang") == std::string::npos ? "--lang en " : "";
    return Shell(before + " " ZAF_HARTFRAME + common + language + arguments + " </dev/null");
  }
  support::TempFolder folder_;
};

TEST_F(Hartframe, UploadShowsTheDeviceInPlainLines) {
  const Outcome upload = Run("upload");
  EXPECT_EQ(upload.code, 0);
  EXPECT_THAT(upload.output, HasSubstr("Load from Device: "));
  EXPECT_THAT(upload.output, Not(HasSubstr("\r")));
  EXPECT_THAT(upload.output,
              testing::ContainsRegex("upper_range_value +Upper range value +473.15 +K"));
  EXPECT_THAT(upload.output, HasSubstr("variables loaded from the device."));
}

TEST_F(Hartframe, WhatIsWrittenIsWhatTheNextRunReads) {
  EXPECT_EQ(Run("write upper_range_value=500 damping_value=3 alarm_selection=low").code, 0);
  const Outcome read = Run("read upper_range_value damping_value alarm_selection");
  EXPECT_EQ(read.code, 0);
  for (const char* value : {"500.00", "3.00", "Low"}) EXPECT_THAT(read.output, HasSubstr(value));
  EXPECT_THAT(support::TempFolder::Read(Device()), HasSubstr("upper_range_value=500"));
}

TEST_F(Hartframe, DownloadWritesTheDataSet) {
  EXPECT_EQ(Run("download damping_value=4").code, 0);
  EXPECT_THAT(support::TempFolder::Read(Device()), HasSubstr("damping_value=4"));
}

TEST_F(Hartframe, JsonIsWholeAndHasTheValues) {
  const Outcome read = Run("read damping_value nonsense* --json");
  EXPECT_EQ(read.code, 1);
  const auto answer = nlohmann::json::parse(Run("read damping_value --json").output);
  EXPECT_EQ(answer.at("result"), "ok");
  EXPECT_EQ(answer.at("variables").at(0).at("value"), 2.5);
  EXPECT_EQ(answer.at("variables").at(0).at("unit"), "s");
}

TEST_F(Hartframe, SpeaksGerman) {
  const Outcome upload = Run("upload --lang de");
  EXPECT_THAT(upload.output, HasSubstr("Messbereichsende"));
  EXPECT_THAT(upload.output, Not(HasSubstr("Upper range value")));
}

TEST_F(Hartframe, WatchShowsLiveValues) {
  const Outcome watch = Run("watch primary_variable --count 2");
  EXPECT_EQ(watch.code, 0);
  EXPECT_EQ(std::count(watch.output.begin(), watch.output.end(), '\n'), 2);
}

struct RefusalCase {
  const char* arguments;
  int code;
  const char* text;
};

TEST_F(Hartframe, RefusesWithACodeAndAReason) {
  const RefusalCase cases[] = {
      {"read no_such_variable", 1, "no_such_variable"},
      {"write alarm_selection=Sideways", 4, "Allowed: "},
      {"write damping_value=soon", 4, "damping_value"},
      {"write --user-level observer damping_value=3", 7, "observer"},
      {"upload --fault nonsense", 1, "nonsense"},
  };
  const std::string before = support::TempFolder::Read(Device());
  for (const RefusalCase& each : cases) {
    const Outcome refused = Run(each.arguments);
    EXPECT_EQ(refused.code, each.code) << each.arguments;
    EXPECT_THAT(refused.output, HasSubstr(each.text)) << each.arguments;
  }
  EXPECT_EQ(support::TempFolder::Read(Device()), before);
}

TEST_F(Hartframe, BrokenDeviceFileIsNamedAndLeftAlone) {
  folder_.Write("device.txt", "[device]\nrubbish\n");
  const Outcome upload = Run("upload");
  EXPECT_EQ(upload.code, 6);
  EXPECT_THAT(upload.output, HasSubstr("Line 2"));
  EXPECT_EQ(support::TempFolder::Read(Device()), "[device]\nrubbish\n");
}

TEST_F(Hartframe, DtmThatIsMissingOrCrashesIsNamed) {
  const Outcome missing = Shell(ZAF_HARTFRAME " list --dtm Nonesuch --lang en");
  EXPECT_EQ(missing.code, 5);
  EXPECT_THAT(missing.output, HasSubstr("libnonesuch.so"));
  const Outcome throwing =
      Shell(ZAF_HARTFRAME " list --lang en --dtm Throwing --dtm-path " ZAF_TEST_PLUGINS);
  EXPECT_EQ(throwing.code, 5);
  EXPECT_THAT(throwing.output, HasSubstr("libthrowing.so"));
}

struct FaultCase {
  const char* fault;
  int code;
  bool reachesDevice;
};

// Whatever happens to the exchanges, a run ends, and a change is either in the device or pending or
// named with what was meant.
TEST_F(Hartframe, FaultsNeverLoseAChange) {
  const FaultCase cases[] = {{"no-reply", 2, false},
                             {"comm-error:0x88", 2, false},
                             {"response:5", 3, false},
                             {"busy", 3, false},
                             {"wrong-command", 2, true}};
  for (const FaultCase& each : cases) {
    const std::string fault = std::string("--fault ") + each.fault;
    const Outcome upload = Run("upload " + fault);
    EXPECT_EQ(upload.code, each.code) << each.fault;
    const Outcome write = Run("write damping_value=9 alarm_delay=9 " + fault);
    EXPECT_EQ(write.code, each.code) << each.fault << write.output;
    EXPECT_THAT(write.output, testing::ContainsRegex("damping_value +Damping +9.00 s"))
        << each.fault;
    const bool stored =
        support::TempFolder::Read(Device()).find("\ndamping_value=9") != std::string::npos;
    EXPECT_EQ(stored, each.reachesDevice) << each.fault;
    std::filesystem::remove(Pending());
  }
}

TEST_F(Hartframe, WritesLaterWhatTheDeviceMissed) {
  EXPECT_EQ(Run("write damping_value=9 alarm_delay=9 --fault no-reply").code, 2);
  const Outcome upload = Run("upload");
  EXPECT_EQ(upload.code, 7);  // it would lose the changes
  EXPECT_THAT(upload.output, HasSubstr("damping_value"));
  EXPECT_EQ(Run("write").code, 0);
  EXPECT_THAT(support::TempFolder::Read(Device()), HasSubstr("damping_value=9"));
  EXPECT_FALSE(std::filesystem::exists(Pending()));
  EXPECT_EQ(Run("write alarm_delay=8 --fault no-reply").code, 2);
  EXPECT_EQ(Run("upload --discard").code, 0);
}

TEST_F(Hartframe, BreakEndsAnUploadAndKeepsChanges) {
  const Outcome upload = Run("upload --latency 200", "timeout --preserve-status -s INT 1");
  EXPECT_EQ(upload.code, 130);
  EXPECT_EQ(Run("write damping_value=9 alarm_delay=9 --fault no-reply").code, 2);
  EXPECT_EQ(Run("write --latency 400", "timeout --preserve-status -s INT 1").code, 130);
  EXPECT_THAT(support::TempFolder::Read(Pending()), HasSubstr("alarm_delay=9"));
}

TEST_F(Hartframe, TraceGoesToStandardErrorAsATree) {
  const Outcome read = Run("read damping_value --trace 1");
  EXPECT_THAT(read.output, HasSubstr("[ IDDKernel_ReadVariable"));
  EXPECT_THAT(read.output, HasSubstr("] IDDKernel_ReadVariable: Exit(3)"));
}

}  // namespace
