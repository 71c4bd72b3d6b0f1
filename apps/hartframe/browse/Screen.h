#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <vector>

#include "hartframe/Session.h"
#include "hartframe/browse/Dialog.h"
#include "hartframe/browse/MessageLog.h"
#include "hartframe/browse/Terminal.h"

namespace hartframe::browse {

class TimedDialog;

// What lies below all dialogs.
class Base {
 public:
  virtual ~Base() = default;
  virtual void Draw(Picture& picture) = 0;
  virtual void OnKey(const Key& key) = 0;
  // Nothing is under way: time to bring up to date what is shown.
  virtual void OnIdle() = 0;
  // Somebody else is at work with the DTM.
  virtual bool IsLocked() const = 0;
};

// What is on the screen and who gets the keys: the topmost dialog, else the base. While an
// operation runs, keys wait for its end, and Escape or Ctrl-C ends it. Takes the console's place.
class Screen : public ConsoleScreen {
 public:
  Screen(Session& session, Terminal& terminal);
  ~Screen() override;
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  void SetBase(Base* base) { base_ = base; }

  // For the terminal, from inside its waits.
  void OnKey(const Key& key);
  void OnIdle();

  // Shows the dialog and lets the message loop run until it is done. True when it was accepted;
  // Ctrl-C cancels it, and nothing else.
  bool Run(Dialog& dialog);
  // The same; after that time the dialog stands as accepted.
  bool Run(Dialog& dialog, platform::Milliseconds atMost);
  // Shows a dialog that gets no keys, for a while; false when the user has broken off.
  bool Show(TimedDialog& dialog, platform::Milliseconds time, bool countdown);
  // The dialog stays on the screen after that, until it is taken off or the operation has ended.
  void Leave(std::shared_ptr<Dialog> dialog);
  void TakeOff(const std::shared_ptr<Dialog>& dialog);

  // Runs an operation, which the user can end. True when it has ended by itself; otherwise the user
  // is told why.
  bool Work(const std::function<void()>& operation);
  bool IsWorking() const { return working_ > 0; }
  // The same, with something else done when the user ends it than to cancel what waits for the
  // device. The operation goes on after that.
  bool Work(const std::function<void()>& operation, const std::function<void()>& onBreak);
  // While an operation's dialogs wait for the user, the base is brought up to date behind them, or
  // not.
  void SetKeepsUp(bool keepsUp) { keepsUp_ = keepsUp; }
  // Ctrl-C has come while nothing was under way; tells it once.
  bool TakeBreak() { return std::exchange(wantsBreak_, false); }
  // A dialog waits for its keys.
  bool IsAsking() const { return !modal_.empty(); }
  bool IsGone() const { return terminal_.IsGone(); }

  // What the user's own doing came to.
  void Tell(Tone tone, const std::string& text, const std::string& help = {});
  // For what the user has not started himself.
  void TellInBackground(Tone tone, const std::string& text, const std::string& help);
  const MessageLog& Log() const { return log_; }
  // Something has changed.
  void Redraw() { isStale_ = true; }
  // Draws it now, unless that was done a moment ago.
  void DrawSoon();

  // What the console would print goes there as well, until the next call; nothing ends that.
  void Record(std::string* transcript) { transcript_ = transcript; }

  void Out(std::string_view text) override { Print(Tone::Plain, text); }
  void Error(std::string_view text) override { Print(Tone::Bad, text); }
  void Progress(const std::string& title, double percent) override;

 private:
  // Gives the dialog the keys until it is done, or it is enough.
  void Attend(Dialog& dialog, const std::function<bool()>& isEnough);
  void OnBreak();
  bool MayIdle() const;
  bool IsBusy() const { return IsWorking() || isIdling_ || (base_ && base_->IsLocked()); }
  void OnBusyKey(const Key& key);
  void DropTypedAhead();
  void Print(Tone tone, std::string_view text);
  // Failures become messages.
  void Guarded(const std::function<void()>& step);
  Picture MakePicture();

  Session& session_;
  Terminal& terminal_;
  Base* base_ = nullptr;
  MessageLog log_;
  std::vector<Dialog*> shown_;  // from the lowest to the topmost
  std::vector<Dialog*> modal_;  // those of them that wait for keys
  std::vector<std::shared_ptr<Dialog>> left_;
  std::deque<Key> typedAhead_;
  int working_ = 0;
  std::function<void()> onBreak_;
  bool wantsBreak_ = false;
  bool isIdling_ = false;
  bool keepsUp_ = false;
  bool isEnding_ = false;  // what was under way was told that the terminal is gone
  bool isStale_ = true;
  platform::Milliseconds lastDrawn_{};
  std::string* transcript_ = nullptr;
  std::string progress_;
  double percent_ = -1;
};

}  // namespace hartframe::browse
