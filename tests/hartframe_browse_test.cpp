// The screen of the frame application, driven with keys over the demo device.
#include "interfaces/InternalNames.h"
#include "support/HartframeTest.h"
#include "support/screen/BrowseTest.h"

namespace {

using namespace support;
using testing::HasSubstr;

const Steps kToService =
    Steps{Sees{"Temperature transmitter"}, kEnter, Sees{"Device setup"}, kDown, kDown, kEnter,
          Sees{"Service interval"}};
const Steps kToTests = kToService + Steps{kEnd, kUp, kEnter, Sees{"> Tests"}, Sees{"Enabled"}};

TEST_F(Browse, ShowsLiveValuesInTheLanguageOfTheMoment) {
  std::string first;
  const auto code = Play({Sees{"Online parameters"},
                          kEnter,
                          Sees{"Device setup"},
                          kEnter,
                          Sees{"Start > Temperature transmitter > Process variables"},
                          Sees{"live, read-only"},
                          Hides{"not read"},
                          Now{[&] { first = terminal_->Text(); }},
                          Until([&] { return terminal_->Text() != first; }),
                          Press(U'l'),
                          Sees{">English"},
                          kDown,
                          kEnter,
                          Sees{"Prozessgrößen"},
                          Sees{"Messwert, nur lesbar"},
                          Sees{"q:Ende"},
                          Press(U'l'),
                          Sees{">Deutsch"},
                          kEnd,
                          kEnter,
                          Sees{"q:owaru"},
                          kEscape,
                          kEscape,
                          Sees{"Sutaato"},
                          Press(U'q')});
  EXPECT_EQ(code, hartframe::ExitCode::Ok);
}

TEST_F(Browse, RefusedValuesStayToBeMendedAndGoodOnesAreWritten) {
  Play(kToService + Steps{Sees{"180"}, kDown, kEnter, Sees{"Allowed: 0 to 3650 d."}} +
       Typed("9999") + Steps{Sees{"_9999_\nNot accepted. Allowed: 0 to 3650 d."}} + Typed("200") +
       Steps{Sees{"200"}, Sees{"to be written"}, Sees{"| 1 to be written |"}, Press(U'w'),
             Sees{"1 of 1 written to the device."}, kEnter, Hides{"to be written"}, Press(U'q')});
  EXPECT_THAT(Device(), HasSubstr("\nservice_interval=200\n"));
}

TEST_F(Browse, ChangesThatAreNotWrittenAreKeptForTheNextRun) {
  const auto ask = [](const char* choice) {
    return Steps{Press(U'q'), Sees{"1 changes are not written yet."}, kDown, kDown, Sees{choice},
                 kEnter};
  };
  Play(kToService + Steps{kDown, kEnter, Sees{"_180_"}} + Typed("200") + ask(">Keep them in"));
  EXPECT_THAT(Pending(), HasSubstr("service_interval=200"));
  Play(kToService + Steps{Sees{"1 to be written"}, kDown, Press(KeyCode::Delete),
                          Sees{"Service interval: the change is given up."}, Sees{"180"},
                          Press(U'q')});
  EXPECT_EQ(Pending(), "");
}

TEST_F(Browse, AGroupIsCompleteWhenEveryMemberWasLookedAt) {
  const Steps toGroup{Sees{"Temperature transmitter"},
                      kEnter,
                      Sees{"Device setup"},
                      kDown,
                      kEnter,
                      Sees{"Linearisation"},
                      kDown,
                      kEnter,
                      Sees{"473.15"},
                      kEnd,
                      kUp,
                      kEnter,
                      Sees{"> Measuring range"},
                      kEnd,
                      kUp,
                      kEnter,
                      Sees{"[ ] Lower range value"}};
  const Steps lower =
      Steps{kDown, kEnter, Sees{"_273.15_"}} + Typed("280") + Steps{Sees{"[x] Lower range value"}};
  Play(toGroup + lower +
       Steps{kEscape, Sees{"highlighted variables must be all checked"}, kEnter, Sees{">Stay here"},
             kDown, kEnter, Sees{"Damping"}, Hides{"1 to be written"}, kEnter,
             Sees{"[ ] Lower range value"}} +
       lower +
       Steps{kUp, kEnter, Sees{">K"}, kEnter, Sees{"[x] Range unit"}, kDown, kDown, kEnter,
             Sees{"_473.15_"}, kEnter, Sees{"[x] Upper range value"}, kEscape, Sees{"Damping"},
             Press(U'w'), Sees{"1 of 1 written"}, kEnter, Press(U'q')});
  EXPECT_THAT(Device(), HasSubstr("\nlower_range_value=280\n"));
}

TEST_F(Browse, AMethodTalksInDialogsAndCleansUpWhenItIsCancelled) {
  Play(kToTests +
       Steps{kDown, kDown, kEnter, Sees{"Take the loop out"}, kEnter, Sees{"Another value"}, kDown,
             kDown, kEnter, Sees{"Current in mA"}} +
       Typed("30") + Steps{Sees{"The greatest value is"}, kEnter, Sees{"Current in mA"}} +
       Typed("12") +
       Steps{Sees{"holds 12.000 mA"}, kEnter, Sees{"Current to fix"}, kEscape,
             Sees{"The loop current follows the measurement again."},
             Sees{"\"Loop test\" was aborted: cancelled by the user."}, kEnd, kEnter,
             Sees{"Seconds to watch"}, kEnter, Sees{"Percent of range:"}, kEscape,
             Sees{"\"Watch measurement\" was aborted"}, kUp, kEnter, Sees{"Start it?"}, kDown,
             kEnter, Sees{"[Self test]"}});
}

TEST_F(Browse, AsksForBitsAndPasswordsInTheirOwnWay) {
  using namespace ZAFHartTypes;
  const auto bits = std::make_shared<Variable>("bits");
  bits->EditTypeInfo().SetTypeCode(TypeCode::BitEnumerated);
  bits->EditTypeInfo().SetSize(1);
  bits->EditTypeInfo().SetBitItems(
      std::make_shared<const BitList>(EnumList{{1, "One"}, {2, "Two"}, {4, "Four"}}));
  bits->SetValue(5);
  const auto password = std::make_shared<Variable>("password");
  password->EditTypeInfo().SetTypeCode(TypeCode::Password);
  password->EditTypeInfo().SetSize(4);
  std::int32_t cancelled = 0;
  const auto ask = [&](const std::shared_ptr<Variable>& variable) {
    return Now{[this, variable, &cancelled] {
      UserMessage message;
      message.icon = MessageIcon::Input;
      message.prompt = "What now?";
      message.input = variable;
      cancelled = session_->Gui().ShowUserMessage(message);
    }};
  };
  Play(Steps{ask(bits), Sees{">[x] One\n [ ] Two\n [x] Four"}, Press(U' '), kDown, Press(U' '),
             Sees{" [ ] One\n>[x] Two"}, kEnter, Hides{"What now?"}, ask(password)} +
       Typed("12345") + Steps{Sees{"Allowed: at most 4 characters."}} + Typed("0815") +
       Steps{Hides{"What now?"}, ask(bits), Sees{"What now?"}, kEscape, Hides{"What now?"}});
  EXPECT_EQ(bits->Value(), Variant(6));
  EXPECT_EQ(password->Value(), Variant("0815"));
  EXPECT_EQ(cancelled, kMessageCancelled);
}

TEST_F(Browse, AMethodThatWaitsForTheDeviceIsCancelled) {
  options_.latencyMilliseconds = 3000;
  platform::Milliseconds start{};
  Play(kToTests + Steps{kEnd, kUp, kEnter, Sees{"Start it?"}, kDown, kEnter, Sees{"Busy"},
                        Now{[&] { start = clock_->Now(); }}, kEscape,
                        Sees{"\"Self test\" was aborted: cancelled by the user."}});
  EXPECT_LT(clock_->Now() - start, platform::Milliseconds(1000));
}

TEST_F(Browse, WhoMayNotWriteSeesWhy) {
  options_.userLevel = ZAFHartTypes::UserLevel::Observer;
  Play(kToService +
       Steps{Sees{"read-only: observer"}, kEnter, Sees{"Service date: read-only: observer"}, kEnd,
             kEnter, Hides{"Reset it?"}, Press(U'w'), Sees{"read-only: observer"}, Now{[&] {
               session_->Database().WriteValue(
                   ZAFHartTypes::Definition::Define(ZAFHartTypes::internal_names::kDataSetLockState,
                                                    ZAFHartTypes::ObjectKind::Variable),
                   1);
             }},
             Press(U'?'), Sees{"Restarts the device"}, kEnter, Press(U'r'),
             Sees{"read-only: data set locked"}});
}

TEST_F(Browse, AFaultOfTheLinkIsToldAndTheScreenGoesOn) {
  options_.faults = {"no-reply"};
  Play(kToService + Steps{Sees{"could not establish a connection"},
                          Sees{"impossibe"},
                          Press(U'm'),
                          Sees{"[Messages]"},
                          kEnter,
                          Sees{"Critical Error:"},
                          Press(KeyCode::Help),
                          Sees{"Check the device"},
                          kEnter,
                          kEscape,
                          Press(U'u'),
                          Sees{"The device does not answer."},
                          kEnter,
                          kEnd,
                          kEnter,
                          Sees{"Reset it?"},
                          kDown,
                          kEnter,
                          Sees{"[Critical Error]"},
                          kEscape,
                          Sees{"\"Device reset\" was aborted"}});
}

TEST_F(Browse, DownloadKeepsTheChangesAndUploadAsksBeforeItLosesThem) {
  Play(kToService + Steps{kDown, kEnter, Sees{"_180_"}} + Typed("200") +
       Steps{Press(U'u'), Sees{"Loading gives up 1 changes"}, kEnter, Sees{"1 to be written"},
             Press(U'd'), Sees{"The data set is loaded"}, kDown, kEnter,
             Sees{"[Write all to the device]"}, Sees{"Service interval  200 d"}, kEnter,
             Hides{"1 to be written"}});
  EXPECT_THAT(Device(), HasSubstr("\nservice_interval=200\n"));
}

TEST_F(Browse, ScrollsWhatIsTooLongAndSaysWhenTheWindowIsTooSmall) {
  const auto resize = [this](int rows, int columns) {
    return Steps{Now{[=, this] { terminal_->SetSize({rows, columns}); }}, Press(KeyCode::Resize)};
  };
  Play(Steps{Sees{"Offline parameters"}, kEnd, kEnter, Sees{"> Offline parameters"}, kEnd,
             Sees{">    "}} +
       resize(20, 80) + Steps{Sees{"it needs 80 x 24"}} + resize(40, 120) +
       Steps{Sees{"Offline parameters"}, Press(U'q')});
}

// The real program on a real terminal.
TEST_F(Hartframe, BrowseDrawsOnTheTerminalAndPutsItBack) {
  setenv("TERM", "xterm-256color", 1);
  ChildProgram program(WithDevice({"browse", "--lang", "en"}), ChildProgram::Streams::Terminal);
  ASSERT_TRUE(program.WaitFor("Temperature transmitter"));
  program.Type("");
  ASSERT_TRUE(program.WaitFor("Device setup"));
  program.Interrupt();
  EXPECT_EQ(program.Finish(), 0);
  EXPECT_THAT(program.Error(), HasSubstr("\033[?1049l")) << "back to the shell's screen";
  EXPECT_EQ(Run({"browse"}).code, 1) << "there is no terminal";
}

}  // namespace
