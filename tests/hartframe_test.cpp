// Runs the frame application over a copy of the demo device and looks at what a person, or a
// script, gets to see.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "support/ChildProgram.h"
#include "support/TempFolder.h"

namespace {

using support::ChildProgram;
using support::TempFolder;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;
using Arguments = std::vector<std::string>;
using Json = nlohmann::json;

struct Result {
  int code;
  std::string out;
  std::string error;
};

class Hartframe : public testing::Test {
 protected:
  Hartframe() { folder_.Write("device.txt", TempFolder::Read(ZAF_DEMO_DEVICE)); }

  Arguments Line(const Arguments& arguments) const {
    Arguments line{ZAF_HARTFRAME};
    line.insert(line.end(), arguments.begin(), arguments.end());
    return line;
  }
  Arguments WithDevice(Arguments arguments) const {
    arguments.insert(arguments.end(), {"--dtm", "SampleTemperature", "--device", device_});
    return Line(arguments);
  }
  static Result Finish(ChildProgram& program) {
    const int code = program.Finish();
    return {code, program.Out(), program.Error()};
  }
  Result RunLine(const Arguments& arguments) const {
    ChildProgram program(Line(arguments), ChildProgram::Streams::Pipes);
    return Finish(program);
  }
  Result Run(const Arguments& arguments) const {
    ChildProgram program(WithDevice(arguments), ChildProgram::Streams::Pipes);
    return Finish(program);
  }
  Json RunJson(Arguments arguments, int code = 0) const {
    arguments.push_back("--json");
    const Result result = Run(arguments);
    EXPECT_EQ(result.code, code) << result.error;
    Json json = Json::parse(result.out);
    EXPECT_EQ(json["exitCode"], code);
    return json;
  }
  Json ReadValue(const std::string& name) const {
    return RunJson({"read", name})["variables"][0]["value"];
  }
  // Replaces a line of the device file.
  void SetInDevice(const std::string& name, const std::string& line) const {
    std::string text = TempFolder::Read(device_);
    const auto at = text.find("\n" + name + "=") + 1;
    text.replace(at, text.find('\n', at) - at, line);
    folder_.Write("device.txt", text);
  }
  std::string PendingFile() const { return TempFolder::Read(device_ + ".pending"); }

  TempFolder folder_;
  const std::string device_ = (folder_ / "device.txt").string();
};

// --- reading ---

TEST_F(Hartframe, UploadInAPipePrintsPlainLinesWithTheDevicesValues) {
  const Result result = Run({"upload"});
  EXPECT_EQ(result.code, 0);
  EXPECT_THAT(result.out, StartsWith("Name "));
  EXPECT_THAT(result.out, HasSubstr("upper_range_value "));
  EXPECT_THAT(result.out, HasSubstr("473.15                     "));
  EXPECT_THAT(result.out, HasSubstr("89 variables loaded from the device. 7 not valid"));
  EXPECT_THAT(result.error, HasSubstr("Load from Device: 75 %\n"));
  EXPECT_THAT(result.out + result.error, AllOf(Not(HasSubstr("\033")), Not(HasSubstr("\r"))));
}

TEST_F(Hartframe, UploadSpeaksTheUsersLanguage) {
  const Result result = Run({"upload", "--lang", "de"});
  EXPECT_THAT(result.out, AllOf(HasSubstr("Messbereichsende"), HasSubstr("nicht gültig"),
                                HasSubstr("89 Variablen aus dem Gerät geladen.")));
}

TEST_F(Hartframe, JsonHasValuesForMachines) {
  const Json json = RunJson({"upload"});
  EXPECT_EQ(json["result"], "ok");
  std::map<std::string, Json> variables;
  for (const Json& variable : json["variables"]) variables[variable["name"]] = variable;
  EXPECT_EQ(variables.size(), 96U);
  EXPECT_EQ(variables["date"]["value"], "2026-03-17");
  EXPECT_EQ(variables["sensor_type"]["value"], 1);
  EXPECT_EQ(variables["sensor_type"]["display"], "Pt100, IEC 60751");
  EXPECT_EQ(variables["upper_range_value"]["unit"], "K");
  EXPECT_EQ(variables["trim_operator"]["value"], "M. Müller");
  EXPECT_TRUE(variables["sensor_minimum"]["value"].is_null()) << "a NaN";
  EXPECT_TRUE(variables["service_code"]["value"].is_null()) << "a password";
  EXPECT_EQ(variables["service_code"]["display"], "****");
  EXPECT_EQ(variables["linearisation_input_7"]["valid"], false);
}

// Whether a point is valid, and what its unit is, follows from variables that have to be read
// first.
TEST_F(Hartframe, ReadKnowsWhatTheDeviceSaysAboutValidityAndUnit) {
  const Json json = RunJson({"read", "LINEARISATION_*_6", "cold_junction_offset"});
  ASSERT_EQ(json["variables"].size(), 3U);
  EXPECT_EQ(json["variables"][0]["valid"], false);
  EXPECT_EQ(json["variables"][1]["value"], 510);
  EXPECT_EQ(json["variables"][1]["unit"], "K");
}

TEST_F(Hartframe, ListShowsDefaultsWithoutTheDevice) {
  const Json json = RunJson({"list", "upper_range_value", "--fault", "no-reply"});
  EXPECT_EQ(json["variables"][0]["value"], 100);
  EXPECT_GT(RunJson({"list", "--internal"})["variables"].size(),
            RunJson({"list"})["variables"].size() + 20);
}

TEST_F(Hartframe, WatchShowsLiveValuesUntilTheirNumberIsReached) {
  const Result result = Run({"watch", "primary_variable", "--count", "2", "--json"});
  EXPECT_EQ(result.code, 0);
  std::istringstream lines(result.out);
  std::vector<Json> documents;
  for (std::string line; std::getline(lines, line);) documents.push_back(Json::parse(line));
  ASSERT_EQ(documents.size(), 3U);
  EXPECT_EQ(documents[1]["update"]["unit"], "K");
  EXPECT_NE(documents[0]["update"]["value"], documents[1]["update"]["value"]);
  EXPECT_EQ(Run({"watch", "cold_junction_offset"}).code, 1) << "not valid, so nothing to watch";
}

TEST_F(Hartframe, InfoTellsWhoTheDeviceIs) {
  const Json json = RunJson({"info"});
  EXPECT_EQ(json["device"]["tag"]["value"], "TT-4711");
  EXPECT_EQ(json["device"]["longAddress"]["value"], "3A1012A4F7");
  EXPECT_EQ(json["device"]["device_revision"]["value"], "2");
  EXPECT_EQ(json["states"]["__ZAF__FDTUserLevel"]["value"], "Planning Engineer");
  EXPECT_EQ(json["dtmFacts"]["class"]["value"], "SampleTemperature.DataModel");
}

TEST_F(Hartframe, TraceGoesToStandardErrorAsDeepAsAsked) {
  const Result flat = Run({"read", "tag", "--trace", "1"});
  EXPECT_THAT(flat.error, AllOf(HasSubstr("[ IDDKernel_ReadVariable\n  > Def: VARIABLE tag"),
                                Not(HasSubstr("  [ IDDKernel_FindReadCommand"))));
  const Result deep = Run({"read", "tag", "--trace", "1", "--trace-depth", "9"});
  EXPECT_THAT(deep.error, HasSubstr("  [ IDDKernel_FindReadCommand"));
  EXPECT_EQ(flat.out, deep.out);
}

// --- writing ---

TEST_F(Hartframe, WrittenValuesAreInTheDevice) {
  struct Case {
    std::string typed;
    Json value;
  };
  const std::vector<Case> cases{
      {"upper_range_value=480.5", 480.5}, {"tag=ab 7", "AB 7"},
      {"trim_operator=Ärzte", "Ärzte"},   {"alarm_selection=hoch", 0},
      {"loop_current_mode=0", 0},         {"service_date=2027-12-31", "2027-12-31"},
      {"final_assembly_number=0x10", 16}};
  Arguments arguments{"write"};
  for (const Case& item : cases) arguments.push_back(item.typed);
  const Json json = RunJson(arguments);
  EXPECT_EQ(json["writes"].size(), cases.size());
  EXPECT_THAT(json["pending"], IsEmpty());
  for (const Case& item : cases)
    EXPECT_EQ(ReadValue(item.typed.substr(0, item.typed.find('='))), item.value) << item.typed;
}

TEST_F(Hartframe, RefusedValuesAreExplainedAndNothingIsWritten) {
  struct Case {
    std::string typed;
    std::string explanation;
    int code;
  };
  const std::vector<Case> cases{
      {"damping_value=99", "Allowed: 0.00 to 60.00 s.", 4},
      {"damping_value=much", "Allowed: 0.00 to 60.00 s.", 4},
      {"alarm_selection=2", R"(Allowed: 0 "High", 1 "Low", 239)", 4},
      {"service_date=2026-02-30", "Allowed: a date like 2026-12-31", 4},
      {"tag=TOO LONG 1", "at most 8 capital letters", 4},
      {"service_note=\xFF", "not UTF-8", 4},
      {"device_id=1", "read-only", 4},
      {"cold_junction_offset=1", "not valid in this configuration", 4},
      {"__ZAF__DynAvailTime=5", "no device command", 4},
      {"no_such_name=1", "no variable \"no_such_name\"", 1},
      {"tag", "NAME=VALUE", 1},
  };
  for (const Case& item : cases) {
    const Result result = Run({"write", "alarm_delay=9", item.typed});
    EXPECT_EQ(result.code, item.code) << item.typed;
    EXPECT_THAT(result.error, HasSubstr(item.explanation)) << item.typed;
  }
  EXPECT_EQ(TempFolder::Read(device_), TempFolder::Read(ZAF_DEMO_DEVICE));
}

TEST_F(Hartframe, DownloadWritesTheWholeDataSetWithTheChanges) {
  const Json json = RunJson({"download", "damping_value=7"});
  ASSERT_EQ(json["writes"].size(), 1U) << "nothing but the change is worth telling";
  EXPECT_EQ(json["writes"][0]["outcome"], "written");
  EXPECT_EQ(ReadValue("damping_value"), 7);
  EXPECT_EQ(ReadValue("upper_range_value").get<float>(), 473.15F);
  EXPECT_EQ(RunJson({"download", "--fault", "busy"}, 3)["problems"].back()["code"], "incomplete");
}

TEST_F(Hartframe, ADeviceIsFoundAtItsPollingAddress) {
  EXPECT_EQ(Run({"write", "polling_address=5"}).code, 0);
  EXPECT_THAT(Run({"read", "tag"}).error, HasSubstr("could not establish a connection"));
  const Result found = Run({"read", "tag", "polling_address", "--address", "5"});
  EXPECT_EQ(found.code, 0);
  EXPECT_THAT(found.error, IsEmpty());
  EXPECT_EQ(Run({"read", "tag", "--address", "64"}).code, 1);
}

TEST_F(Hartframe, AnObserverCannotWrite) {
  const Result result = Run({"write", "tag=X", "--user-level", "observer"});
  EXPECT_EQ(result.code, 7);
  EXPECT_THAT(result.error, HasSubstr("observer cannot write"));
  EXPECT_EQ(Run({"read", "tag", "--user-level", "observer"}).code, 0);
}

// --- what is still to be written ---

TEST_F(Hartframe, WhatNoDeviceAnsweredToIsWrittenByALaterRun) {
  const Json failed = RunJson({"write", "tag=NEW", "alarm_delay=9", "--fault", "no-reply"}, 2);
  EXPECT_EQ(failed["writes"][0]["outcome"], "noAnswer");
  EXPECT_EQ(failed["writes"][0]["meant"], "NEW");
  EXPECT_TRUE(failed["writes"][0]["deviceHas"].is_null());
  EXPECT_EQ(failed["writes"][1]["outcome"], "notAttempted");
  EXPECT_EQ(failed["pending"].size(), 2U);
  EXPECT_EQ(RunJson({"list", "--pending"})["variables"].size(), 2U);

  EXPECT_EQ(Run({"write"}).code, 0);
  EXPECT_EQ(ReadValue("tag"), "NEW");
  EXPECT_EQ(ReadValue("alarm_delay"), 9);
  EXPECT_THAT(PendingFile(), IsEmpty());
  EXPECT_THAT(Run({"write"}).out, HasSubstr("Nothing to write"));
}

// Without the device this point is not valid, by the defaults; that must not lose the change.
TEST_F(Hartframe, PendingChangesSurviveARunInWhichTheyCannotBeJudged) {
  folder_.Write("device.txt.pending", "linearisation_input_1=260\n");
  EXPECT_EQ(Run({"write", "tag=NEW", "--fault", "no-reply"}).code, 2);
  EXPECT_THAT(PendingFile(), AllOf(HasSubstr("linearisation_input_1=260"), HasSubstr("tag=NEW")));
  EXPECT_EQ(Run({"write", "linearisation_input_1=270", "--fault", "no-reply"}).code, 2);
  EXPECT_THAT(PendingFile(), HasSubstr("=260")) << "refused, so the older change stands";
  EXPECT_EQ(Run({"write", "linearisation_input_1=280"}).code, 0);
  EXPECT_THAT(PendingFile(), IsEmpty());
  EXPECT_EQ(ReadValue("linearisation_input_1"), 280);
  EXPECT_EQ(ReadValue("tag"), "NEW");
}

TEST_F(Hartframe, UploadOverPendingChangesRefusesInAPipe) {
  Run({"write", "tag=NEW", "--fault", "no-reply"});
  const Result refused = Run({"upload"});
  EXPECT_EQ(refused.code, 7);
  EXPECT_THAT(refused.error, HasSubstr("tag"));
  EXPECT_EQ(Run({"upload", "--discard"}).code, 0);
  EXPECT_THAT(PendingFile(), IsEmpty());
}

TEST_F(Hartframe, UploadOverPendingChangesAsksOnATerminal) {
  Run({"write", "tag=NEW", "--fault", "no-reply"});
  ChildProgram no(WithDevice({"upload"}), ChildProgram::Streams::Terminal);
  ASSERT_TRUE(no.WaitFor("lose them?"));
  no.Type("no");
  EXPECT_EQ(no.Finish(), 7);
  EXPECT_THAT(PendingFile(), HasSubstr("tag=NEW"));

  ChildProgram yes(WithDevice({"upload", "--lang", "de", "--latency", "5"}),
                   ChildProgram::Streams::Terminal);
  ASSERT_TRUE(yes.WaitFor("verlieren?"));
  yes.Type("ja");
  EXPECT_EQ(yes.Finish(), 0);
  EXPECT_THAT(yes.Error(), HasSubstr("[####")) << "a bar on a terminal";
  EXPECT_THAT(PendingFile(), IsEmpty());
}

TEST_F(Hartframe, BrokenLinesOfThePendingFileAreNamed) {
  folder_.Write("device.txt.pending", "tag=A\nnonsense\n");
  const Result result = Run({"write"});
  EXPECT_EQ(result.code, 6);
  EXPECT_THAT(result.error, AllOf(HasSubstr("device.txt.pending"), HasSubstr("line 2")));
  EXPECT_THAT(PendingFile(), HasSubstr("tag=A\nnonsense\n")) << "nothing is lost";
}

// --- faults ---

struct FaultCase {
  std::string fault;
  int uploadCode;
  int writeCode;
  std::string message;  // German, of either
  std::size_t pending;  // of two changes
};

class HartframeFault : public Hartframe, public testing::WithParamInterface<FaultCase> {};

TEST_P(HartframeFault, EndsAndTellsTheUserInHisLanguage) {
  const FaultCase& fault = GetParam();
  const Result upload = Run({"upload", "--lang", "de", "--fault", fault.fault});
  EXPECT_EQ(upload.code, fault.uploadCode);
  const Arguments write{"write", "damping_value=3", "alarm_delay=9", "--fault", fault.fault};
  Arguments german = write;
  german.insert(german.end(), {"--lang", "de"});
  const Result written = Run(german);
  EXPECT_EQ(written.code, fault.writeCode);
  EXPECT_THAT(upload.out + upload.error + written.out + written.error, HasSubstr(fault.message));
  EXPECT_THAT(written.out, AllOf(HasSubstr("3.00 s"), HasSubstr("9 s"))) << "what was meant";
  const std::string pending = PendingFile();
  EXPECT_EQ(std::count(pending.begin(), pending.end(), '='), fault.pending);
}

INSTANTIATE_TEST_SUITE_P(
    Each, HartframeFault,
    testing::Values(FaultCase{"no-reply", 2, 2, "Das Gerät antwortet nicht.", 2},
                    FaultCase{"comm-error:0x88", 2, 2, "ist gestört.", 2},
                    FaultCase{"response:7", 3, 3, "Schreibschutz aktiv", 0},
                    FaultCase{"busy", 3, 3, "Beschäftigt", 0},
                    FaultCase{"device-status:0x80", 0, 0, "2 von 2 in das Gerät geschrieben.", 0},
                    FaultCase{"truncated", 2, 2, "keine brauchbare Antwort", 2},
                    FaultCase{"overlong", 0, 0, "2 von 2 in das Gerät geschrieben.", 0},
                    FaultCase{"corrupt", 0, 0, "vom Gerät geändert; das Gerät hat", 0},
                    FaultCase{"wrong-command", 2, 2, "Das Gerät antwortet nicht.", 2}),
    [](const auto& parameter) {
      std::string name = parameter.param.fault;
      std::erase_if(name, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); });
      return name;
    });

// --- Ctrl-C ---

TEST_F(Hartframe, AnInterruptedUploadTellsHowMuchIsLeft) {
  ChildProgram program(WithDevice({"upload", "--latency", "30"}), ChildProgram::Streams::Pipes);
  ASSERT_TRUE(program.WaitFor("Load from Device"));
  program.Interrupt();
  EXPECT_EQ(program.Finish(), 130);
  EXPECT_THAT(program.Error(), HasSubstr("Interrupted; "));
  EXPECT_THAT(program.Out(), HasSubstr("not read"));
}

TEST_F(Hartframe, AnInterruptedWriteKeepsWhatWasNotAttempted) {
  ChildProgram program(WithDevice({"write", "tag=NEW", "damping_value=3", "alarm_delay=9",
                                   "service_note=x", "--latency", "60"}),
                       ChildProgram::Streams::Pipes);
  ASSERT_TRUE(program.WaitFor("Write Changes"));
  program.Interrupt();
  EXPECT_EQ(program.Finish(), 130);
  EXPECT_THAT(PendingFile(), HasSubstr("service_note=x"));
  EXPECT_EQ(Run({"write"}).code, 0);
  EXPECT_EQ(ReadValue("service_note"), "x");
}

TEST_F(Hartframe, WatchEndsWellWithCtrlC) {
  ChildProgram program(WithDevice({"watch", "primary_variable"}), ChildProgram::Streams::Terminal);
  ASSERT_TRUE(program.WaitFor("Sensor temperature"));
  program.Interrupt();
  EXPECT_EQ(program.Finish(), 0);
}

// --- bad surroundings ---

TEST_F(Hartframe, DtmsThatCannotBeLoadedAreExplained) {
  struct Case {
    std::string dtm;
    std::string explanation;
  };
  for (const Case& item : {Case{"Missing", "no plug-in \"libmissing.so\""},
                           Case{"Throwing", "thrown while the plug-in is loaded"},
                           Case{"WrongAbi", "build it anew"}, Case{"../evil", "project.class"}}) {
    const Result result = RunLine({"info", "--dtm", item.dtm, "--dtm-path", ZAF_TEST_PLUGINS});
    EXPECT_EQ(result.code, 5) << item.dtm;
    EXPECT_THAT(result.error, HasSubstr(item.explanation));
  }
}

TEST_F(Hartframe, DeviceFilesThatCannotBeUsedAreExplained) {
  SetInDevice("damping_value", "damping_value=much");
  const Result mistyped = Run({"upload"});
  EXPECT_EQ(mistyped.code, 6);
  EXPECT_THAT(mistyped.error, AllOf(HasSubstr("damping_value"), HasSubstr("line 77")));

  SetInDevice("damping_value", "damping_value 2.5");
  const Result broken = Run({"upload"});
  EXPECT_EQ(broken.code, 6);
  EXPECT_THAT(broken.error, HasSubstr("ine 77"));
  EXPECT_THAT(TempFolder::Read(device_), HasSubstr("\ndamping_value 2.5\n")) << "left alone";
}

TEST_F(Hartframe, WrongArgumentsAreUsageErrors) {
  EXPECT_EQ(RunLine({}).code, 1);
  EXPECT_EQ(RunLine({"upload"}).code, 1);
  EXPECT_EQ(RunLine({"frobnicate"}).code, 1);
  EXPECT_EQ(Run({"upload", "--link", "echo"}).code, 1) << "an echo has no memory";
  EXPECT_EQ(Run({"upload", "--lang", "xx"}).code, 1);
  EXPECT_EQ(Run({"read", "z*"}).code, 1);
  const Result fault = Run({"upload", "--fault", "gremlins"});
  EXPECT_EQ(fault.code, 1);
  EXPECT_THAT(fault.error, HasSubstr("no-reply[:COUNT]"));
  const Result help = RunLine({"--help"});
  EXPECT_EQ(help.code, 0);
  EXPECT_THAT(help.out, HasSubstr("130  ended by Ctrl-C"));
}

}  // namespace
