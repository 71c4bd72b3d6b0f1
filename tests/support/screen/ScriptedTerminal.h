#pragma once

#include <deque>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "hartframe/browse/Screen.h"
#include "platform/Platform.h"

namespace support {

// A terminal without a person: presses keys and waits for texts, step by step, while the message
// loop waits. Time passes only when a text is waited for. After the last step it is closed.
class ScriptedTerminal : public hartframe::browse::Terminal, public platform::HostLoop {
 public:
  struct Sees {
    std::string text;
  };
  struct Hides {
    std::string text;
  };
  // Until the condition holds.
  using Until = std::function<bool()>;
  // Is done, and may wait itself.
  struct Now {
    std::function<void()> action;
  };
  using Step = std::variant<hartframe::browse::Key, Sees, Hides, Until, Now>;
  using Steps = std::vector<Step>;

  explicit ScriptedTerminal(platform::ManualClock& clock) : clock_(clock) {
    platform::Current().Loop().SetHostLoop(this);
  }
  ~ScriptedTerminal() override { platform::Current().Loop().SetHostLoop(nullptr); }

  void Play(hartframe::browse::Screen& target, Steps steps) {
    target_ = &target;
    steps_.assign(steps.begin(), steps.end());
  }
  void SetSize(hartframe::browse::Size size) { size_ = size; }
  // What was drawn last, in lines.
  std::string Text() const;
  const hartframe::browse::Picture& Shown() const { return picture_; }

  hartframe::browse::Size GetSize() const override { return size_; }
  void Show(const hartframe::browse::Picture& picture) override { picture_ = picture; }
  void Beep() override {}
  bool IsGone() const override { return isGone_; }

  void OnNextDueChanged() override {}
  void RunHostEvents(platform::Milliseconds until) override;

 private:
  bool Do(const Step& step);

  platform::ManualClock& clock_;
  hartframe::browse::Screen* target_ = nullptr;
  std::deque<Step> steps_;
  hartframe::browse::Size size_;
  hartframe::browse::Picture picture_;
  platform::Milliseconds waited_{};
  bool isGone_ = false;
};

// Keys for scripts.
inline hartframe::browse::Key Press(hartframe::browse::KeyCode code) {
  return {code, 0};
}
inline hartframe::browse::Key Press(char32_t character) {
  return {hartframe::browse::KeyCode::Character, character};
}

}  // namespace support
