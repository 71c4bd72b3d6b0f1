// A debugger as an author of DTMs uses it: on the sample transmitter with an emulated device,
// driven by text, with a clock that only the exchanges move.
#include <gmock/gmock.h>

#include <sstream>

#include "debugger/StandardTerminal.h"
#include "debugger/Tracer.h"
#include "gui/CDDDTMGUI.h"
#include "settings/Settings.h"
#include "support/SampleDevice.h"
#include "support/TempFolder.h"
#include "trace/CExternalTraceConnection.h"

namespace {

using namespace test_support;
using namespace ZAFHartDebugger;
using testing::AllOf;
using testing::Contains;
using testing::ContainsRegex;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr std::string_view kPrompt = "(hart) ";
constexpr const char* kTagReply = "51 4B 74 DF 1C 60 48 50 43 50 F4 A0 CE 05 0F 42 08 20 11 03 7E";

// Its device takes 100 ms for an exchange. The first read has connected it: reads send one command.
class DebuggedDtm : public SampleDevice {
 protected:
  DebuggedDtm() {
    auto link = std::make_shared<HartLinkSim::DeviceLink>(device_);
    link_ = link;
    UseLink(link);
    Kernel().ReadVariable(VariableNamed("final_assembly_number"));
    link->LinkFaults().Add("latency:100");
  }
  ~DebuggedDtm() override { Gui().SetExternalTracer(nullptr); }

  void Debug(const std::string& script) {
    debugger_ =
        std::make_shared<Debugger>(std::make_shared<StandardTerminal>(input_, output_), Settings(),
                                   [this]() -> Time { return platform_.GetClock().Now(); });
    debugger_->RunScript(script);
    platform_.Classes().Register("Test.Debugger",
                                 [this] { return std::make_shared<Tracer>(debugger_); });
    ConnectTracer("Test.Debugger");
  }
  void ConnectTracer(const std::string& className) {
    platform_.Registry().SetValue(ZAFHartLib::kTracerKey, ZAFHartLib::kTracerClassName, className);
    Gui().SetExternalTracer(std::make_shared<ZAFHartLib::CExternalTraceConnection>());
  }
  // The lines that are written while the variable is read, with these answers to the prompt.
  std::vector<std::string> Read(const std::string& name, const std::string& answers = {}) {
    input_.clear();
    input_.str(answers);
    Kernel().ReadVariable(VariableNamed(name));
    return TakeLines();
  }
  std::vector<std::string> TakeLines() {
    std::istringstream text(output_.str());
    output_.str({});
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) {
      while (line.starts_with(kPrompt)) line.erase(0, kPrompt.size());
      if (!line.empty()) lines.push_back(line);
    }
    return lines;
  }
  // Reasons of the stops.
  static std::vector<std::string> Stops(const std::vector<std::string>& lines) {
    constexpr std::string_view kStopped = "Stopped: ";
    std::vector<std::string> stops;
    for (const std::string& line : lines) {
      if (line.starts_with(kStopped)) stops.push_back(line.substr(kStopped.size()));
    }
    return stops;
  }
  IDDKernel& Kernel() { return *components_->DDKernel(); }
  ZAFHartLib::CDDDTMGUI& Gui() {
    return dynamic_cast<ZAFHartLib::CDDDTMGUI&>(*components_->DDGUI());
  }

  std::shared_ptr<HartLinkSim::DeviceLink> link_;
  std::stringstream input_;
  std::ostringstream output_;
  std::shared_ptr<Debugger> debugger_;
};

TEST_F(DebuggedDtm, ShowsATreeWithDurationsAndTheBytesOfCommands) {
  Debug("level 0; depth 2");
  EXPECT_THAT(
      Read("tag"),
      ElementsAre(
          "            ReadVariable  > Def: VARIABLE tag",
          "    0.0 µs    GetVariable  > Def: VARIABLE tag  calculated  "
          "<Result: VARIABLE tag Value=TT-0000 not available  Exit(2)",
          "    0.0 µs    FindReadCommand  > Def: VARIABLE tag  > Prev = Nothing  "
          "<Result: COMMAND read_tag_descriptor_date Number=13 Operation=0 Transaction=0  Exit(1)",
          "              ExecuteCommand  > Cmd: COMMAND read_tag_descriptor_date Number=13 "
          "Operation=0  > Tno: 0",
          std::string("100.000 ms      #13  > -  < 00 10 ") + kTagReply,
          "100.000 ms    ExecuteCommand  Exit(2)",
          "    0.0 µs    GetVariable  > Def: VARIABLE tag  "
          "<Result: VARIABLE tag Value=TT-4711 available  Exit(1)",
          "100.000 ms  ReadVariable  <Result: VARIABLE tag Value=TT-4711 available  Exit(3)"));
  debugger_->RunScript("depth 1; filter message");
  EXPECT_THAT(Read("long_tag"), IsEmpty());
  EXPECT_THAT(Read("message"), ElementsAre("            ReadVariable  > Def: VARIABLE message",
                                           StartsWith("100.000 ms    #12  > -  < 00 10 0C 81 43"),
                                           "100.000 ms  ReadVariable  <Result: VARIABLE message "
                                           "Value=CHECK AFTER SHUTDOWN available  Exit(3)"));
}

TEST_F(DebuggedDtm, StepsFromABreakAndLooksAround) {
  Debug("level 0; depth 0; top 0; break FindRead*:TAG; break ExecuteCommand:#12");
  const std::string answers = "where\n\nnext\nstep\nprint tag\nprint *_tag\nout\nout\nnext\n";
  const std::vector<std::string> lines = Read("tag", answers);
  EXPECT_THAT(
      Stops(lines),
      ElementsAre("break FindRead*:TAG: FindReadCommand  > Def: VARIABLE tag  > Prev = Nothing",
                  "ExecuteCommand  > Cmd: COMMAND read_tag_descriptor_date Number=13 "
                  "Operation=0  > Tno: 0",
                  "GetVariable  > Def: VARIABLE response_code",
                  "GetVariable  > Def: VARIABLE response_code  Exit(1)",
                  "ExecuteCommand  > Cmd: COMMAND read_tag_descriptor_date Number=13 "
                  "Operation=0  > Tno: 0  Exit(2)",
                  "GetVariable  > Def: VARIABLE tag"));
  for (const char* line :
       {"1      0.0 µs  ReadVariable  > Def: VARIABLE tag",
        "2      0.0 µs  FindReadCommand  > Def: VARIABLE tag  > Prev = Nothing",
        "VARIABLE tag Value=TT-0000 not available Type=8 Size=8 attributes current",
        "  Read by a reply=never", "VARIABLE long_tag Value=Temperature transmitter not available"})
    EXPECT_THAT(lines, Contains(line));
  // The input has ended: nothing stops any more.
  EXPECT_THAT(Read("message", "c\n"), IsEmpty());
}

TEST_F(DebuggedDtm, TellsWhatIsWatchedBeforeAndAfter) {
  Debug("level 0; depth 0; top 0; watch tag; break changed:date; watch nothing");
  const std::vector<std::string> lines = Read("tag", "watch nobody\ndelete tag\nlist\nc\n");
  for (const char* line : {"tag: Value=TT-0000 not available  ->  Value=TT-4711 available",
                           "date: Value=65892 not available  ->  Value=1115006 available  "
                           "(ReadVariable/ExecuteCommand/ExecutePostReads)",
                           "\"print *nobody*\" looks for others.", "1  break changed:date  (1)"})
    EXPECT_THAT(lines, Contains(HasSubstr(line)));
  EXPECT_THAT(Stops(lines), ElementsAre("break changed: date"));
  Kernel().WriteVariable(VariableNamed("tag"), "NEW");
  EXPECT_THAT(TakeLines(), IsEmpty());
  Gui().SetExternalTracer(nullptr);
  debugger_->End();
  EXPECT_THAT(TakeLines(), ElementsAre("There is no object of this name: nothing"));
}

TEST_F(DebuggedDtm, TellsAndStopsAtErrors) {
  Debug("level 0; depth 1; break error; break Nowhere");
  link_->LinkFaults().Add("no-reply:1");
  EXPECT_THAT(Read("tag"), Contains("100.000 ms    #13  > -  < no reply"));
  link_->LinkFaults().Clear();
  link_->LinkFaults().Add("response:7");
  input_.str("where\n");
  Kernel().WriteVariable(VariableNamed("message"), "NEW");
  const std::vector<std::string> lines = TakeLines();
  EXPECT_THAT(lines, Contains(EndsWith("  < 07 10  response code 7")));
  EXPECT_THAT(lines, Contains("              In write protect mode"));
  EXPECT_THAT(Stops(lines), ElementsAre("Response Code Error: Command 17, Transaction 0"));
}

TEST_F(DebuggedDtm, SumsUpWhatARunDid) {
  Debug("level 0; depth 0; top 2");
  link_->LinkFaults().Add("no-reply:1");
  Read("tag");
  link_->LinkFaults().Clear();
  link_->LinkFaults().Add("latency:20");
  components_->DDWorkerDB()->SetVariableAvailable({}, false);
  Read("tag");
  Read("message");
  debugger_->End();
  debugger_->End();
  EXPECT_THAT(
      TakeLines(),
      ElementsAre("Commands  count        mean     longest  sent  received  no reply  with code",
                  "  #12         1   20.000 ms   20.000 ms     0        26         0          0",
                  "  #13         2   60.000 ms  100.000 ms     0        23         1          0",
                  "  all         3   46.667 ms  100.000 ms     0        49         1          0",
                  "Slowest operations", "  100.000 ms  ReadVariable  > Def: VARIABLE tag",
                  "   20.000 ms  ReadVariable  > Def: VARIABLE tag",
                  StartsWith("Attributes computed: "), ContainsRegex("^ +[0-9]+  [A-Z]+ "),
                  ContainsRegex("^ +[0-9]+  [A-Z]+ "), ContainsRegex("^  … [0-9]+ more$")));
}

TEST_F(DebuggedDtm, OperationsThatFailAreShownWhenTheNextComes) {
  Debug("level 0; depth 2; top 0");
  EXPECT_THROW(Read("nobody"), Failure);
  EXPECT_THAT(TakeLines(), IsEmpty());
  Kernel().GetVariable(VariableNamed("tag"));
  EXPECT_THAT(TakeLines(), ElementsAre("            ReadVariable  > Def: VARIABLE nobody",
                                       "    0.0 µs    GetVariable  > Def: VARIABLE nobody  failed",
                                       "    0.0 µs  ReadVariable  failed", HasSubstr("tag")));
}

TEST_F(DebuggedDtm, QuittingCancels) {
  Debug("level 0; depth 2; top 0; break ExecuteCommand");
  debugger_->SetOnQuit([this](const StopPlace&) { components_->CancelOperation(); });
  input_.str("quit\n");
  Definition menu;
  EXPECT_THROW(components_->Upload(menu), Failure);
  EXPECT_EQ(Stops(TakeLines()).size(), 1U);
}

TEST_F(DebuggedDtm, TellsWhatCommandsAreWrong) {
  Debug("brek x; where; break; level 10; delete 1; break A; delete 2; watch");
  EXPECT_THAT(
      TakeLines(),
      ElementsAre("\"brek\" is no command; \"help\" lists them.", "\"where\" needs a stop first.",
                  StartsWith("\"\" is no place to break: "), "\"10\" is no number from 0 to 9.",
                  "There is no break, and \"1\" is not watched.", "\"2\" is no number from 1 to 1.",
                  "Say which object."));
}

TEST_F(DebuggedDtm, ComesAsAPluginSetUpByTheRegistry) {
  const support::TempFolder folder;
  const std::string file = (folder / "trace.txt").string();
  platform_.Registry().SetValue(ZAFHartLib::kTracerKey, "Commands", "level 0; depth 1; wrong");
  platform_.Registry().SetValue(ZAFHartLib::kTracerKey, "File", file);
  ConnectTracer("ZAFHartDebugger.Tracer");
  Kernel().ReadVariable(VariableNamed("tag"));
  Gui().SetExternalTracer(nullptr);
  EXPECT_THAT(support::TempFolder::Read(file),
              AllOf(StartsWith("\"wrong\" is no command"), HasSubstr(kTagReply),
                    HasSubstr("\nCommands  count "), HasSubstr("#13         1 ")));
}

}  // namespace
