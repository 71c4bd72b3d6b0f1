#pragma once

#include <gtest/gtest.h>

#include "hartframe/browse/Browser.h"
#include "hartframe/report/TextReport.h"
#include "support/TempFolder.h"
#include "support/screen/ScriptedTerminal.h"

namespace support {

using hartframe::browse::KeyCode;
using Sees = ScriptedTerminal::Sees;
using Hides = ScriptedTerminal::Hides;
using Steps = ScriptedTerminal::Steps;
using Now = ScriptedTerminal::Now;
using Until = ScriptedTerminal::Until;

inline const auto kEnter = Press(KeyCode::Enter);
inline const auto kEscape = Press(KeyCode::Escape);
inline const auto kUp = Press(KeyCode::Up);
inline const auto kDown = Press(KeyCode::Down);
inline const auto kEnd = Press(KeyCode::End);

inline Steps operator+(Steps a, const Steps& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

inline Steps Times(int count, const hartframe::browse::Key& key) {
  return Steps(static_cast<std::size_t>(count), key);
}

// Replaces what a field holds.
inline Steps Typed(const std::string& text) {
  Steps steps = Times(40, Press(KeyCode::Backspace));
  for (const char c : text) steps.emplace_back(Press(static_cast<char32_t>(c)));
  steps.emplace_back(kEnter);
  return steps;
}

// The screen of the frame application over a copy of the demo device.
class Browse : public testing::Test {
 protected:
  Browse() {
    folder_.Write("device.txt", TempFolder::Read(ZAF_DEMO_DEVICE));
    platform_.Classes().LoadPlugin(std::filesystem::path(ZAF_DTM_FOLDER) /
                                   "libsampletemperature.so");
    options_.command = hartframe::CommandKind::Browse;
    options_.dtm = "SampleTemperature";
    options_.deviceFile = folder_ / "device.txt";
    options_.link = hartframe::LinkKind::Device;
  }

  // `shown`: a session or a pair; `owner`: of its changes.
  template <typename Shown>
  hartframe::ExitCode PlayOn(Shown& shown, hartframe::Session& owner, Steps steps) {
    ScriptedTerminal terminal(*clock_);
    terminal_ = &terminal;
    const auto pending = hartframe::LoadPending(owner);
    hartframe::browse::Browser browser(shown, terminal);
    terminal.Play(browser.KeyTarget(), std::move(steps));
    const auto code = browser.Run(pending);
    if (!browser.IsAbandoned()) hartframe::KeepPending(owner, browser.NotAccepted());
    return code;
  }
  hartframe::ExitCode Play(Steps steps) {
    hartframe::Session session(options_, console_, speech_, report_);
    session_ = &session;
    session.Open();
    return PlayOn(session, session, std::move(steps));
  }
  std::string Device() const { return TempFolder::Read(options_.deviceFile); }
  std::string Pending() const {
    return TempFolder::Read(options_.deviceFile.string() + ".pending");
  }

  TempFolder folder_;
  platform::ManualClock* clock_ = new platform::ManualClock;
  platform::Platform platform_{std::unique_ptr<platform::Clock>(clock_)};
  platform::PlatformScope scope_{platform_};
  hartframe::Options options_;
  hartframe::Console console_;
  hartframe::Speech speech_{"en"};
  hartframe::TextReport report_{console_, speech_};
  hartframe::Session* session_ = nullptr;
  ScriptedTerminal* terminal_ = nullptr;
};

}  // namespace support
