// Menus and methods in the frame application.
#include "support/HartframeTest.h"

namespace {

using namespace support;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

Json Find(const Json& items, const std::string& name) {
  for (const Json& item : items) {
    if (item["name"] == name) return item;
  }
  ADD_FAILURE() << name;
  return {};
}

// Prompts, each with its answer behind "=" when it got one.
std::vector<std::string> Messages(const Json& json) {
  std::vector<std::string> messages;
  for (const Json& message : json.value("messages", Json::array())) {
    const std::string prompt = message["prompt"];
    messages.push_back(
        message.contains("answer") ? prompt + "=" + message["answer"].get<std::string>() : prompt);
  }
  return messages;
}

// --- menus ---

TEST_F(Hartframe, MenusShowTheDevicesValuesAndWhatElseTheyHold) {
  const Json roots = RunJson({"menu", "--fault", "no-reply"})["menu"];
  EXPECT_EQ(roots["items"][0]["name"], "root_menu");
  EXPECT_EQ(Find(roots["items"], "process_variables")["kind"], "menu");

  const Json output = RunJson({"menu", "temperature transmitter/device/output"})["menu"];
  EXPECT_EQ(output["path"], Json({"Temperature transmitter", "Device setup", "Output"}));
  const Json upper = Find(output["items"], "upper_range_value");
  EXPECT_EQ(upper["variable"]["display"], "473.15");
  EXPECT_EQ(upper["variable"]["unit"], "K");
  EXPECT_EQ(upper["readOnly"], false);
  EXPECT_EQ(Find(output["items"], "measuring_span")["variable"]["value"], 200) << "calculated";
  EXPECT_EQ(Find(output["items"], "transfer_function")["readOnly"], true);
  EXPECT_EQ(Find(output["items"], "range_form")["kind"], "editDisplay");
  EXPECT_EQ(Find(output["items"], "alarm_menu")["kind"], "menu");
  EXPECT_THAT(Run({"menu", "Temperaturmess", "Wartung", "Test", "--lang", "de"}).out,
              AllOf(HasSubstr("Temperaturmessumformer > Wartung > Tests\n"),
                    HasSubstr("Schleifentest"), HasSubstr("Methode")));
}

TEST_F(Hartframe, ValidityInAMenuIsTheDevices) {
  SetInDevice("loop_current_mode", "loop_current_mode=0");
  const Json items = RunJson({"menu", "test_menu"})["menu"]["items"];
  EXPECT_EQ(Find(items, "loop_test")["valid"], false);
  EXPECT_EQ(Find(items, "self_test")["valid"], true);
  const Result observer = Run({"menu", "alarm_menu", "--user-level", "observer"});
  EXPECT_THAT(observer.out, HasSubstr("3       s           read-only"));
  const Result silent = Run({"menu", "alarm_menu", "--fault", "no-reply"});
  EXPECT_EQ(silent.code, 2);
  EXPECT_THAT(silent.error, HasSubstr("The device does not answer."));
}

TEST_F(Hartframe, EditDisplaysAreEnteredAndTheirGroupsShown) {
  const Json form = RunJson({"menu", "output_menu", "Measuring range"})["menu"];
  EXPECT_EQ(form["kind"], "editDisplay");
  EXPECT_EQ(Find(form["items"], "measuring_span")["variable"]["value"], 200);
  EXPECT_EQ(Find(form["items"], "measuring_span")["readOnly"], true);
  const Json group = Find(form["editItems"], "range_values");
  EXPECT_EQ(group["kind"], "writeAsOne");
  EXPECT_EQ(Find(group["members"], "upper_range_value")["variable"]["display"], "473.15");
}

TEST_F(Hartframe, PathsThatLeadNowhereAreExplained) {
  struct Case {
    Arguments path;
    std::string explanation;
  };
  const std::vector<Case> cases{
      {{"Nothing"}, R"(no menu "Nothing". There is: "Temperature transmitter", )"},
      {{"o"}, R"("o" may be any of "Online parameters", "Offline parameters")"},
      {{"online", "device", "x"}, R"("x" is not in the menu "Device setup". There is: "Sensor", )"},
      {{"sensor_menu/sensor_type/x"}, R"("Sensor type" is no menu)"},
      {{"sensor_menu/sensor_type"}, "hartframe read sensor_type"},
      {{"test_menu/loop test"}, "hartframe run loop_test"}};
  for (const Case& item : cases) {
    Arguments arguments{"menu"};
    arguments.insert(arguments.end(), item.path.begin(), item.path.end());
    const Result result = Run(arguments);
    EXPECT_EQ(result.code, 1) << item.explanation;
    EXPECT_THAT(result.error, HasSubstr(item.explanation));
  }
}

// --- methods of the sample DTM ---

TEST_F(Hartframe, MethodsRunWithTheAnswersOfAScript) {
  folder_.Write("device.txt.pending", "tag=EARLIER\n");
  const Json json =
      RunJson({"run",      "Loop test", "--answer", "",         "--answer", "20 MA",    "--answer",
               "ok",       "--answer",  "2",        "--answer", "21.5",     "--answer", "ok",
               "--answer", "3",         "--answer", "ok",       "--answer", "more"});
  EXPECT_THAT(Messages(json),
              ElementsAre(HasSubstr("will not follow the measurement. Take the loop out"),
                          "Current to fix=20 mA", HasSubstr("holds 20.000 mA."),
                          "Current to fix=Another value", "Current in mA (3.5 to 23)=21.5",
                          HasSubstr("holds 21.500 mA."), "Current to fix=End of test",
                          HasSubstr("follows the measurement again.")));
  EXPECT_EQ(json["notes"][1]["code"], "answersLeft") << "behind the end";
  EXPECT_THAT(json["notes"][1]["text"].get<std::string>(), HasSubstr(R"("more")"));
  EXPECT_EQ(PendingFile(), "tag=EARLIER\n") << "no business of the method";
}

TEST_F(Hartframe, MethodsAreOnlyRunWhenTheyMayBe) {
  SetInDevice("loop_current_mode", "loop_current_mode=0");
  const Result notValid = Run({"run", "loop_test", "--lang", "de"});
  EXPECT_EQ(notValid.code, 7);
  EXPECT_THAT(notValid.error, HasSubstr("\"Schleifentest\" wurde nicht ausgeführt"));
  EXPECT_EQ(Run({"run", "self_test", "--user-level", "observer"}).code, 7);
  const Result unknown = Run({"run", "nonsense"});
  EXPECT_EQ(unknown.code, 1);
  EXPECT_THAT(unknown.error,
              AllOf(HasSubstr("\"Self test\" (self_test)"), Not(HasSubstr("round_damping"))))
      << "an action";
  EXPECT_THAT(Run({"run", "loop"}).error, HasSubstr("may be any of"));
}

TEST_F(Hartframe, ALostDeviceEndsAMethodWithItsReason) {
  const Json json =
      RunJson({"run", "loop_test", "--answer", "ok", "--answer", "0", "--fault", "no-reply"}, 8);
  EXPECT_EQ(json["problems"][0]["code"], "aborted.noDevice");
  EXPECT_THAT(Messages(json), testing::Contains(HasSubstr("could not be released")));
}

TEST_F(Hartframe, CtrlCAbortsAMethodAndCleansUp) {
  ChildProgram program(WithDevice({"run", "loop_test"}), ChildProgram::Streams::Terminal);
  ASSERT_TRUE(program.WaitFor("Ctrl-D to cancel:"));
  program.Type("");
  ASSERT_TRUE(program.WaitFor("  1  20 mA"));
  program.Type("5");
  ASSERT_TRUE(program.WaitFor("Allowed: 0 \"4 mA\""));
  program.Type("1");
  ASSERT_TRUE(program.WaitFor("holds 20.000 mA"));
  program.Interrupt();
  EXPECT_EQ(program.Finish(), 130);
  EXPECT_THAT(program.Error(), AllOf(HasSubstr("The loop current follows the measurement again."),
                                     HasSubstr("1 s left"), HasSubstr("interrupted by Ctrl-C")));
}

TEST_F(Hartframe, CtrlCEndsAMethodThatShowsLiveValues) {
  ChildProgram program(WithDevice({"run", "watch_measurement", "--answer", "600"}),
                       ChildProgram::Streams::Pipes);
  ASSERT_TRUE(program.WaitFor("Sensor temperature"));
  program.Interrupt();
  EXPECT_EQ(program.Finish(), 130);
}

// --- a DTM with a method for each way to end ---

class HartframeAsking : public Hartframe {
 protected:
  Arguments Asking(Arguments arguments) const {
    arguments.insert(arguments.end(), {"--dtm", "Asking", "--dtm-path", ZAF_TEST_PLUGINS});
    return arguments;
  }
  Json Ask(const std::vector<std::string>& answers, int code, const Arguments& more = {}) const {
    Arguments arguments{"run", "ask", "--json"};
    for (const std::string& answer : answers) {
      arguments.push_back("--answer");
      arguments.push_back(answer);
    }
    arguments.insert(arguments.end(), more.begin(), more.end());
    const Result result = RunLine(Asking(arguments));
    EXPECT_EQ(result.code, code) << result.out << result.error;
    return Json::parse(result.out);
  }
};

TEST_F(HartframeAsking, WhatAMethodSavesIsToldAndStillToBeWritten) {
  const Json json = Ask({"ok", "in/OUT", "7.5", "cancelled?", ""}, 0, {"--lang", "de"});
  EXPECT_THAT(Messages(json), ElementsAre("Bereit?=ok", "Tempo=Ein/aus", "Neuer Sollwert=7.50 s",
                                          "Note=cancelled?", "Speed 1, cancelled?=ok"));
  EXPECT_EQ(json["variables"][0]["name"], "setpoint");
  EXPECT_EQ(json["variables"][0]["toBeWritten"], true);
  EXPECT_EQ(json["pending"][0]["value"], 7.5);
  const Json forgotten = Json::parse(RunLine(Asking({"run", "forget", "--json"})).out);
  EXPECT_FALSE(forgotten.contains("variables"));
  EXPECT_FALSE(forgotten.contains("pending")) << "assigned, but not saved";
}

TEST_F(HartframeAsking, YesAcknowledgesWithoutAnswers) {
  EXPECT_THAT(
      Messages(Ask({"Fast", "1", "x"}, 0, {"--yes"})),
      ElementsAre("Ready?=ok", "Speed=Fast", "New setpoint=1.00 s", "Note=x", "Speed 2, x=ok"));
}

TEST_F(HartframeAsking, AnswersThatAreNoneAbortTheMethodAndAreExplained) {
  struct Case {
    std::vector<std::string> answers;
    std::string code;
    std::string explanation;
    std::size_t messages;  // without those of the abort method
  };
  const std::vector<Case> cases{
      {{}, "answerMissing", R"("Ready?" waits for an answer)", 1},
      {{"yes"}, "answerRefused", R"("Ready?": the answer "yes" is not accepted. Allowed: "ok")", 1},
      {{"ok", "Quick"}, "answerRefused", R"(Allowed: 0 "Slow", 1 "In/out", 2 "Fast")", 2},
      {{"ok", "3"}, "answerRefused", R"("Speed": the answer "3")", 2},
      {{"ok", "0", "10.5"}, "answerRefused", "Allowed: 0.00 to 10.00 s.", 3},
      {{"ok", "0", "much"}, "answerRefused", R"("New setpoint": the answer "much")", 3},
      {{"ok", "0", "5"}, "answerMissing", R"("Note" waits for an answer)", 4}};
  for (const Case& item : cases) {
    const Json json = Ask(item.answers, 9);
    EXPECT_EQ(json["problems"][0]["code"], item.code);
    EXPECT_THAT(json["problems"][0]["text"].get<std::string>(), HasSubstr(item.explanation));
    EXPECT_EQ(json["problems"][1]["code"], "aborted.answer");
    const auto messages = Messages(json);
    ASSERT_EQ(messages.size(), item.messages + 2) << item.explanation;
    EXPECT_EQ(messages.back(), "Never answered") << "the abort method has run, unanswered";
    EXPECT_FALSE(json.contains("pending"));
  }
}

TEST_F(HartframeAsking, ValidityThatCannotBeReadIsToldAsSuch) {
  const Result silent = RunLine(Asking({"run", "when_low", "--fault", "no-reply"}));
  EXPECT_EQ(silent.code, 2);
  EXPECT_THAT(silent.error, AllOf(HasSubstr("whether it is valid is not known"),
                                  HasSubstr("command 130 (read_setpoint)")));
  const Result refusing = RunLine(Asking({"run", "when_low", "--fault", "response:5"}));
  EXPECT_EQ(refusing.code, 3);
  EXPECT_THAT(refusing.error, HasSubstr("response code 5, "));
}

TEST_F(HartframeAsking, EveryEndHasItsCodeAndReason) {
  EXPECT_EQ(Ask({"ok", "Cancel", "5"}, 8)["problems"][0]["code"], "aborted.cancelled");
  struct Case {
    std::string method;
    int code;
    std::string explanation;
  };
  for (const Case& item : {Case{"stumble", 10, "Variable \"nonsense\" not defined!"},
                           Case{"break", 10, "\"break\" has failed: too much"},
                           Case{"give_up", 8, "the method itself decided so"}}) {
    const Result result = RunLine(Asking({"run", item.method}));
    EXPECT_EQ(result.code, item.code) << item.method;
    EXPECT_THAT(result.error, HasSubstr(item.explanation));
  }
}

TEST_F(HartframeAsking, AtATerminalTheUserIsAsked) {
  ChildProgram program(Line(Asking({"run", "ask", "--answer", "ok"})),
                       ChildProgram::Streams::Terminal);
  ASSERT_TRUE(program.WaitFor("Number or text: ")) << "the script's answers come first";
  program.Type("fast");
  ASSERT_TRUE(program.WaitFor("Value: [2.00 s] "));
  program.Type("11");
  ASSERT_TRUE(program.WaitFor("Value: [2.00 s] 11\r\nAllowed: 0.00 to 10.00 s."));
  program.Type("");
  ASSERT_TRUE(program.WaitFor("Value: [none] "));
  program.Type("said");
  ASSERT_TRUE(program.WaitFor("Speed 2, said"));
  program.Type("");
  EXPECT_EQ(program.Finish(), 0);
}

}  // namespace
