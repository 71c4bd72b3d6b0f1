// What a person, or a script, gets to see of the frame application.
#include "support/HartframeTest.h"

namespace {

using namespace support;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

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
  EXPECT_THAT(flat.error,
              AllOf(HasSubstr("\n            ReadVariable  > Def: VARIABLE tag\n"),
                    HasSubstr("  #13  > -  < 00 10 51 4B 74 DF"), HasSubstr("Commands  count "),
                    Not(HasSubstr("  FindReadCommand")), Not(HasSubstr("\033["))));
  const std::string file = (folder_ / "trace").string();
  const Result deep = Run({"read", "tag", "--trace", "1", "--trace-depth", "9", "--trace-top", "0",
                           "--trace-file", file});
  EXPECT_THAT(TempFolder::Read(file),
              AllOf(HasSubstr("    FindReadCommand"), Not(HasSubstr("Commands  count "))));
  EXPECT_EQ(deep.error, "");
  EXPECT_EQ(flat.out, deep.out);
}

TEST_F(Hartframe, StopsAndAsksInColoursOnATerminal) {
  ChildProgram program(WithDevice({"read", "tag", "--break", "ExecuteCommand", "--watch", "date"}),
                       ChildProgram::Streams::Terminal);
  ASSERT_TRUE(program.WaitFor("(hart) "));
  program.Type("print tag");
  ASSERT_TRUE(program.WaitFor("Label=Tag"));
  program.Type("quit");
  EXPECT_EQ(program.Finish(), 130);
  EXPECT_THAT(program.Error(), HasSubstr("\033[1mExecuteCommand\033[0m  > Cmd: COMMAND"));
  EXPECT_EQ(Run({"read", "tag", "--break", ":"}).code, 1);
  EXPECT_EQ(Run({"browse", "--break", "error"}).code, 1);
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

TEST_F(Hartframe, ADeviceThatRefusesToSayWhoItIsIsTold) {
  const Result refused = Run({"upload", "--fault", "response:7"});
  EXPECT_EQ(refused.code, 3);
  EXPECT_EQ(refused.out, "") << "no values that nobody has read";
  EXPECT_THAT(refused.error, HasSubstr("The device has refused a request."));
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

}  // namespace
