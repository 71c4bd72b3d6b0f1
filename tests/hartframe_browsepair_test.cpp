// Both sides of a pair on the screen of the frame application, driven with keys.
#include <gmock/gmock.h>

#include "support/screen/BrowseTest.h"

namespace {

using namespace support;
using hartframe::browse::Tone;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using ZAFHartTypes::Definition;
using ZAFHartTypes::ObjectKind;

constexpr const char* kShared = "__ZAF__ZAFsingleStorage_RECONNECTRETRYNO";
const auto kTab = Press(KeyCode::Tab);

class BrowsePair : public Browse {
 protected:
  BrowsePair() {
    options_.browsePair = true;
    options_.dataSetFile = folder_ / "plant.dataset";
    Load();
  }
  // The data set as the device has it.
  void Load() {
    PlayPair({Press(U'u'), Sees{"taken over into the data set"}, kEnter, Press(U's'),
              Sees{"Saved in"}, Press(U'q')});
  }
  hartframe::ExitCode PlayPair(Steps steps) {
    hartframe::Session session(options_, console_, speech_, report_);
    session_ = &session;
    session.Open();
    hartframe::DataSetPair pair(session);
    pair_ = &pair;
    return PlayOn(pair, pair.Offline(), std::move(steps));
  }
  // Waits until the row has that tone.
  Until Shows(const std::string& beginning, Tone tone) {
    return [=, this] {
      for (const auto& line : terminal_->Shown().items.lines) {
        if (line.text.starts_with(beginning)) return line.tone == tone;
      }
      return false;
    };
  }
  Steps Edited(const std::string& value) const {
    return Steps{kEnter, Sees{"Allowed"}} + Typed(value);
  }
  std::string File() const { return TempFolder::Read(options_.dataSetFile); }
  void SetInDevice(const std::string& before, const std::string& after) {
    std::string text = Device();
    text.replace(text.find(before), before.size(), after);
    folder_.Write("device.txt", text);
  }

  hartframe::DataSetPair* pair_ = nullptr;
};

const Steps kToInterval =
    Steps{Sees{"Temperature transmitter"}, kEnter, Sees{"Device setup"}, kDown, kDown, kEnter,
          Sees{"Service interval"},        kDown};
const Steps kToService =
    Steps{Sees{"Temperature transmitter"}, kEnter, Sees{"Device setup"}, kDown, kDown, kEnter,
          Sees{"= Service interval"}};

TEST_F(BrowsePair, MarksEveryDifferenceAndWritesWhatCanBeWritten) {
  SetInDevice("restart_count=65539", "restart_count=65540");
  PlayPair(kToService +
           Steps{Until(Shows("   = Service interval", Tone::Plain)),
                 Until(Shows("   ≠ Restarts", Tone::Different)), kDown} +
           Edited("200") +
           Steps{Until(Shows("   ≠ Service interval", Tone::Different)),
                 Sees{"200 d"},
                 Sees{"180 d"},
                 Sees{" to be written"},
                 Press(U'c'),
                 Sees{"> Comparison"},
                 Sees{"2 different"},
                 Press(U'c'),
                 Sees{"> Differences"},
                 Sees{"≠ Service interval"},
                 Hides{" = "},
                 Press(U'd'),
                 Sees{"To be written (1):\n  Service interval: 180 d → 200 d"},
                 Sees{"cannot be written (1):\n  Restarts: 65540 → 65539 (read-only)"},
                 kDown,
                 kEnter,
                 Sees{"1 of 1 written to the device."},
                 kEnter,
                 Hides{"Service interval"},
                 Sees{"≠ Restarts"},
                 kEscape,
                 Until(Shows("   = Service interval", Tone::Plain)),
                 Press(U'q'),
                 Sees{"not saved in"},
                 kDown,
                 Sees{">Save in"},
                 kEnter});
  EXPECT_THAT(Device(), HasSubstr("\nservice_interval=200\n"));
  EXPECT_THAT(File(), HasSubstr("service_interval=a- unsigned int32 200"));
}

TEST_F(BrowsePair, ATypedValueSurvivesAFaultOfTheDownload) {
  const std::string device = Device();
  options_.faults = {"no-reply"};
  PlayPair(Steps{Press(U'c'), Sees{"> Comparison"}, Sees{"device not read yet"}, kEscape} +
           kToInterval + Edited("200") +
           Steps{Press(U'd'),
                 Sees{"The device does not answer."},
                 kEnter,
                 Sees{"200 d"},
                 Sees{"1 to be written"},
                 Press(U'q'),
                 Sees{"not saved in"},
                 Sees{"1 changes are not written yet."},
                 kEscape,
                 Sees{"200 d"},
                 Press(U'q'),
                 kDown,
                 Sees{">Write to the device"},
                 kEnter,
                 Sees{"The device does not answer."},
                 kEnter,
                 Sees{"200 d"},
                 Press(U'q'),
                 kDown,
                 kDown,
                 Sees{">Save in"},
                 kEnter});
  EXPECT_EQ(Device(), device);
  EXPECT_THAT(File(), HasSubstr("service_interval=aw unsigned int32 200"));
}

TEST_F(BrowsePair, QuitsWithoutSavingOnlyWhenToldSo) {
  const std::string before = File();
  PlayPair(kToService + Steps{kDown} + Edited("200") +
           Steps{Press(U'q'), Press(KeyCode::End), Sees{">Quit without saving"}, kEnter});
  EXPECT_EQ(File(), before);
  PlayPair(kToService + Steps{kDown} + Edited("201"));  // the terminal is closed
  EXPECT_THAT(File(), HasSubstr("service_interval=aw unsigned int32 201"));
}

TEST_F(BrowsePair, SharesSingleStorageVariablesAtOnceBothWays) {
  const auto write = [this](bool offline, int value) {
    return Now{[=, this] {
      (offline ? pair_->Offline() : pair_->Online())
          .Database()
          .WriteValue(Definition::Define(kShared, ObjectKind::Variable), value);
    }};
  };
  const auto has = [this](const std::string& value) {
    return Until([=, this] {
      const auto text = terminal_->Text();
      const auto at = text.find("= Reconnect Retry No");
      if (at == std::string::npos) return false;
      const std::string line = text.substr(at, text.find('\n', at) - at);
      const auto first = line.find(" " + value + " ");
      return first != std::string::npos && line.find(" " + value + " ", first + 1) != line.npos;
    });
  };
  PlayPair(Steps{Press(U'c'), Sees{"> Comparison"}, Press(KeyCode::End), has("2"), write(false, 6),
                 has("6"), write(true, 4), has("4")} +
           Edited("7") +
           Steps{has("7"), kTab, Sees{"[Device]"}, Press(U'c'), Sees{"> Comparison"},
                 Press(KeyCode::End), has("7")} +
           Edited("9") + Steps{has("9"), kTab, Sees{"[Data set]"}, has("9"), Press(U's')});
  EXPECT_THAT(File(), HasSubstr(std::string(kShared) + "=a- integer int32 9"));
}

TEST_F(BrowsePair, KeepsTheSidesApartAndRefreshesTheDevicesAlone) {
  PlayPair(kToService + Steps{kDown} + Edited("200") + Steps{kTab, Sees{"[Device]"}} + kToInterval +
           Steps{Sees{"200 d"}} + Edited("190") +
           Steps{Sees{"waits online"}, Sees{"2 to be written"}, Press(U'R'),
                 Sees{"1 changes on the device's side"}, kDown, kEnter, Sees{"read anew"},
                 Hides{"waits online"}, Sees{"180 d"}, Sees{"1 to be written"}, Press(KeyCode::End),
                 kTab, Press(KeyCode::End), kEnter, Sees{"Device reset needs the device"},
                 Press(U'i'), Sees{"Only the device's side is written at once"}});
  EXPECT_THAT(Device(), HasSubstr("\nservice_interval=180\n"));
}

// --- one data set ---

TEST_F(Browse, WritesAtOnceInSynchronousModeAndLosesNothing) {
  const Steps edit = Steps{Press(U'i'), Sees{"| writes at once |"}, kEnter, Sees{"Allowed"}};
  Play(kToInterval + edit + Typed("200") + Steps{Sees{"Service interval = 200 d: written"}});
  EXPECT_THAT(Device(), HasSubstr("\nservice_interval=200\n"));
  EXPECT_EQ(Pending(), "");
  options_.faults = {"no-reply"};
  Play(kToInterval + edit + Typed("210") + Steps{Sees{"| 1 to be written |"}});
  EXPECT_THAT(Pending(), HasSubstr("service_interval=210"));
}

TEST_F(Browse, LiveRowsGoOnBehindTheDialogOfAMethod) {
  std::string first;
  const auto current = [this] {
    const auto text = terminal_->Text();
    const auto at = text.find("Loop current  ");
    return text.substr(at, text.find('\n', at) - at);
  };
  Play(kToInterval + Steps{Press(KeyCode::End), Press(KeyCode::Up), kEnter, Sees{"> Tests"},
                           Sees{" mA live"}, kDown, kDown, kEnter, Sees{"Take the loop out"},
                           Now{[&] { first = current(); }},
                           Until([&] { return current() != first; }), Sees{"Take the loop out"}});
}

TEST_F(Browse, AFileThatCannotBeWrittenIsToldBeforeTheScreenIsLeft) {
  options_.dataSetFile = folder_ / "plant.dataset";
  hartframe::Session session(options_, console_, speech_, report_);
  session.Open();
  session.SetKept(
      std::make_shared<hartframe::KeptDataSet>(session, folder_ / "nowhere" / "plant.dataset"));
  PlayOn(session, session,
         kToInterval + Steps{kEnter, Sees{"Allowed"}} + Typed("200") +
             Steps{Press(U's'), Sees{"nowhere"}, Press(U'q'), kDown, kDown, Sees{">Keep them in"},
                   kEnter, Sees{"nowhere"}, Sees{">Stay here"}, kEnter, Sees{"200"}, Press(U'q'),
                   kDown, kDown, kEnter, kDown, Sees{">Quit without saving"}, kEnter});
  EXPECT_TRUE(session.Kept()->IsAbandoned());
}

}  // namespace
