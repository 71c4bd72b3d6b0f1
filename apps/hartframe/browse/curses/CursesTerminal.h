#pragma once

#include <memory>

#include "hartframe/browse/Key.h"
#include "hartframe/browse/Screen.h"
#include "platform/MessageLoop.h"

namespace hartframe::browse {

class KeyReader;

// The process's terminal, by way of ncurses: in use for the lifetime of the object, and put back in
// order also when a signal ends the process. As the host of the message loop it waits for keys
// while the loop waits. One object at a time.
class CursesTerminal : public Terminal, public platform::HostLoop {
 public:
  // CommandFailure (Usage) when there is no terminal, or one that cannot show a screen.
  explicit CursesTerminal(const Speech& speech);
  ~CursesTerminal() override;
  CursesTerminal(const CursesTerminal&) = delete;
  CursesTerminal& operator=(const CursesTerminal&) = delete;

  // Where the keys go from now on.
  void SetTarget(Screen* target) { target_ = target; }

  // --- Terminal ---
  Size GetSize() const override;
  void Show(const Picture& picture) override;
  void Beep() override;
  bool IsGone() const override;

  // --- HostLoop ---
  void OnNextDueChanged() override {}
  void RunHostEvents(platform::Milliseconds until) override;

 private:
  void ReadKeys();

  Screen* target_ = nullptr;
  std::unique_ptr<KeyReader> keys_;
  bool isClosed_ = false;
};

}  // namespace hartframe::browse
