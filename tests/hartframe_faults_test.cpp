// The frame application when something goes wrong: faults of the link, Ctrl-C, bad surroundings.
#include "support/HartframeTest.h"

namespace {

using namespace support;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

// --- faults ---

struct FaultCase {
  std::string fault;
  int uploadCode;
  int writeCode;
  std::string message;  // German, of either
  std::size_t pending;  // of two changes
  friend void PrintTo(const FaultCase& one, std::ostream* out) { *out << one.fault; }
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

// The tag's command sends descriptor and date as well: never the defaults of unread ones.
TEST_F(Hartframe, AWriteNeverSendsWhatCouldNotBeReadAlongWithIt) {
  const Json before = ReadValue("descriptor");
  int heldBack = 0;
  for (const char* fault : {"no-reply:", "response:16:", "truncated:"}) {
    for (int strikes = 1; strikes < 5; ++strikes) {
      const std::string both = fault + std::to_string(strikes);
      heldBack += Run({"write", "tag=NEW", "--fault", both}).code != 0;
      EXPECT_EQ(ReadValue("descriptor"), before) << both;
    }
  }
  EXPECT_GT(heldBack, 2);
}

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

// --- bad descriptions and surroundings ---

struct HartframeOddDtm : Hartframe {
  // Over an emulated device of its own.
  Result RunOdd(Arguments arguments) const {
    arguments.insert(arguments.end(), {"--dtm", "Asking", "--dtm-path", ZAF_TEST_PLUGINS,
                                       "--device", (folder_ / "odd.txt").string()});
    return RunLine(arguments);
  }
};

TEST_F(HartframeOddDtm, VariablesThatCannotBeReadAsDescribedAreNamed) {
  struct Case {
    Arguments arguments;
    int code;
  };
  const Case cases[] = {{{"read", "age", "setpoint"}, 70},
                        {{"menu", "ages"}, 70},
                        {{"read", "age", "device_id", "--fault", "response:7"}, 3}};
  for (const Case& item : cases) {
    const Result result = RunOdd(item.arguments);
    EXPECT_EQ(result.code, item.code) << result.out << result.error;
    EXPECT_THAT(result.error, AllOf(HasSubstr(": age"), Not(HasSubstr("setpoint"))));
  }
}

TEST_F(HartframeOddDtm, WithoutAnUploadMenuTheWholeConfigurationIsLoadedAndWritten) {
  const Result written = RunOdd({"download", "setpoint=3"});
  EXPECT_EQ(written.code, 0) << written.out << written.error;
  const Result upload = RunOdd({"upload"});
  EXPECT_EQ(upload.code, 0) << upload.error;
  EXPECT_THAT(upload.out, AllOf(HasSubstr("device_id"), HasSubstr("3.00"), Not(HasSubstr("age"))));
}

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

// The manual page and what completes the command line in bash are made of what the parser knows.
TEST_F(Hartframe, DocumentsItself) {
  const Result page = RunLine({"print-man-page"});
  EXPECT_EQ(page.code, 0);
  EXPECT_THAT(page.out, HasSubstr(".SS \\fBsave\\fR \\fIFILE\\fR [\\fINAME=VALUE\\fR]\n"));
  EXPECT_THAT(page.out, HasSubstr("\n\\fB\\-\\-pcap\\fR \\fIFILE\\fR\n"));
  EXPECT_THAT(page.out, HasSubstr(".TP\n130\nended by Ctrl\\-C\n"));
  EXPECT_THAT(page.out, Not(HasSubstr("probe")));

  const std::string script = RunLine({"print-bash-completion"}).out + R"(
    COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _hartframe; echo "${COMPREPLY[*]}")";
  const std::pair<std::vector<std::string>, const char*> cases[] = {
      {{"hartframe", "downl"}, "download\n"},
      {{"hartframe", "--lang", "f"}, "fr\n"},
      {{"hartframe", "--json", "upload", "--dis"}, "--discard\n"},
      {{"hartframe", "--address", ""}, "\n"},
  };
  for (const auto& [words, completed] : cases) {
    std::vector<std::string> arguments{"/bin/bash", "-c", script, "bash"};
    arguments.insert(arguments.end(), words.begin(), words.end());
    ChildProgram bash(arguments, ChildProgram::Streams::Pipes);
    EXPECT_EQ(bash.Finish(), 0);
    EXPECT_EQ(bash.Out(), completed);
  }
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
