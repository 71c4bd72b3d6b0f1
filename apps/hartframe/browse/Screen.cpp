#include "hartframe/browse/Screen.h"

#include <algorithm>

#include "hartframe/browse/BrowseTexts.h"
#include "hartframe/browse/Dialogs.h"
#include "platform/Platform.h"
#include "types/Failure.h"

namespace hartframe::browse {

using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Failure;

namespace {

constexpr platform::Milliseconds kStep{100};  // of a wait
constexpr platform::Milliseconds kBetweenDraws{40};

// Puts something at the end of a list for its lifetime.
template <typename T>
class Entry {
 public:
  Entry(std::vector<T*>& list, T& item) : list_(list), item_(&item) { list_.push_back(item_); }
  ~Entry() { std::erase(list_, item_); }
  Entry(const Entry&) = delete;
  Entry& operator=(const Entry&) = delete;

 private:
  std::vector<T*>& list_;
  T* item_;
};

template <typename T>
class Restored {
 public:
  Restored(T& place, T value) : place_(place), before_(std::exchange(place, std::move(value))) {}
  ~Restored() { place_ = std::move(before_); }
  Restored(const Restored&) = delete;
  Restored& operator=(const Restored&) = delete;

 private:
  T& place_;
  T before_;
};

int SecondsUntil(platform::Milliseconds end) {
  const auto left = end - platform::Current().GetClock().Now();
  return static_cast<int>((left.count() + 999) / 1000);
}

}  // namespace

Screen::Screen(Session& session, Terminal& terminal) : session_(session), terminal_(terminal) {
  session_.Terminal().SetScreen(this);
  session_.Signals().SetHandler([this] { OnBreak(); });
  wantsBreak_ = session_.Interrupted();
  session_.Signals().Resume();
}

Screen::~Screen() {
  session_.Signals().SetHandler({});
  session_.Terminal().SetScreen(nullptr);
}

// Escape while something is under way, or Ctrl-C: ends what is on top.
void Screen::OnBreak() {
  isStale_ = true;
  if (!modal_.empty()) {
    modal_.back()->Cancel();
    session_.Signals().Resume();
  } else if (IsWorking() && onBreak_) {
    session_.Signals().Resume();
    onBreak_();
  } else if (IsBusy()) {
    session_.Components().CancelOperation();
    if (!IsWorking()) session_.Signals().Resume();
  } else {
    wantsBreak_ = true;
    session_.Signals().Resume();
  }
}

// --- keys ---

void Screen::OnKey(const Key& key) {
  isStale_ = true;
  if (key.code == KeyCode::Resize) return;
  if (!modal_.empty()) {
    modal_.back()->OnKey(key);
  } else if (IsBusy()) {
    OnBusyKey(key);
  } else if (base_) {
    log_.Clear();
    Guarded([&] { base_->OnKey(key); });
  }
}

void Screen::OnBusyKey(const Key& key) {
  if (key.code != KeyCode::Escape) {
    typedAhead_.push_back(key);
    return;
  }
  DropTypedAhead();
  session_.Signals().Interrupt();
}

// Keys that were meant for something else must not answer what the user has not seen.
void Screen::DropTypedAhead() {
  if (typedAhead_.empty()) return;
  typedAhead_.clear();
  terminal_.Beep();
}

bool Screen::MayIdle() const {
  if (!base_ || isIdling_ || base_->IsLocked()) return false;
  return !IsWorking() || (keepsUp_ && IsAsking());
}

void Screen::OnIdle() {
  if (IsWorking() && terminal_.IsGone() && !std::exchange(isEnding_, true))
    session_.Signals().Interrupt();
  if (MayIdle()) {
    const Restored<bool> idling(isIdling_, true);
    Guarded([this] { base_->OnIdle(); });
  }
  while (!typedAhead_.empty() && !IsBusy()) {
    const Key key = typedAhead_.front();
    typedAhead_.pop_front();
    OnKey(key);
  }
  DrawSoon();
}

// --- dialogs ---

void Screen::Attend(Dialog& dialog, const std::function<bool()>& isEnough) {
  DropTypedAhead();
  const Entry<Dialog> shown(shown_, dialog);
  const Entry<Dialog> modal(modal_, dialog);
  isStale_ = true;
  while (!dialog.IsDone() && !isEnough()) {
    if (terminal_.IsGone()) {
      dialog.Cancel();
    } else {
      platform::Current().Loop().WaitStep(kStep);
    }
  }
  isStale_ = true;
}

bool Screen::Run(Dialog& dialog) {
  Attend(dialog, [] { return false; });
  return dialog.IsAccepted();
}

bool Screen::Run(Dialog& dialog, platform::Milliseconds atMost) {
  const auto end = platform::Current().GetClock().Now() + atMost;
  Attend(dialog, [end] { return SecondsUntil(end) <= 0; });
  return dialog.IsAccepted() || !dialog.IsDone();
}

bool Screen::Show(TimedDialog& dialog, platform::Milliseconds time, bool countdown) {
  const auto end = platform::Current().GetClock().Now() + time;
  Attend(dialog, [&] {
    if (countdown) dialog.SetSecondsLeft(SecondsUntil(end));
    isStale_ = isStale_ || countdown;
    return SecondsUntil(end) <= 0;
  });
  return !dialog.IsDone();
}

void Screen::Leave(std::shared_ptr<Dialog> dialog) {
  shown_.push_back(dialog.get());
  left_.push_back(std::move(dialog));
  isStale_ = true;
}

void Screen::TakeOff(const std::shared_ptr<Dialog>& dialog) {
  std::erase(shown_, dialog.get());
  std::erase(left_, dialog);
  isStale_ = true;
}

// --- work ---

void Screen::Guarded(const std::function<void()>& step) {
  try {
    step();
  } catch (const Failure& failure) {
    const bool cancelled = failure.Number() == ErrorNumber::Cancelled;
    Tell(cancelled ? Tone::Pending : Tone::Bad,
         cancelled ? session_.Say()(Text::Interrupted) : failure.Description());
  }
}

bool Screen::Work(const std::function<void()>& operation, const std::function<void()>& onBreak) {
  const Restored<std::function<void()>> restored(onBreak_, onBreak);
  return Work(operation);
}

bool Screen::Work(const std::function<void()>& operation) {
  bool finished = false;
  log_.Clear();
  isStale_ = true;
  {
    const Restored<int> working(working_, working_ + 1);
    Guarded([&] {
      operation();
      finished = !session_.Interrupted();
      if (!finished) Tell(Tone::Pending, session_.Say()(Text::Interrupted));
    });
  }
  while (!IsWorking() && !left_.empty()) TakeOff(std::shared_ptr<Dialog>(left_.back()));
  if (!IsWorking()) session_.Signals().Resume();
  isStale_ = true;
  return finished;
}

// --- what is shown ---

void Screen::Tell(Tone tone, const std::string& text, const std::string& help) {
  log_.AddOutcome(tone, text, help);
  isStale_ = true;
}

void Screen::TellInBackground(Tone tone, const std::string& text, const std::string& help) {
  log_.Add(tone, text, help);
  isStale_ = true;
}

void Screen::Print(Tone tone, std::string_view text) {
  Tell(tone, std::string(text));
  if (transcript_) transcript_->append(text).append("\n");
}

void Screen::Progress(const std::string& title, double percent) {
  progress_ = title;
  percent_ = percent;
  isStale_ = true;
  DrawSoon();
}

void Screen::DrawSoon() {
  if (!isStale_) return;
  const auto now = platform::Current().GetClock().Now();
  if (now - lastDrawn_ < kBetweenDraws) return;
  lastDrawn_ = now;
  isStale_ = false;
  terminal_.Show(MakePicture());
}

Picture Screen::MakePicture() {
  Picture picture;
  picture.size = terminal_.GetSize();
  if (picture.size.rows < kSmallest.rows || picture.size.columns < kSmallest.columns) {
    picture.tooSmall = session_.Say()(
        texts::kTooSmall, {std::to_string(kSmallest.columns), std::to_string(kSmallest.rows)});
    return picture;
  }
  if (base_) base_->Draw(picture);
  picture.progress = progress_;
  picture.percent = percent_;
  if (const LogEntry* entry = log_.Shown()) {
    picture.message = entry->line;
    if (entry->count > 1) picture.message += " (" + std::to_string(entry->count) + "x)";
    picture.messageTone = entry->tone;
  }
  if (IsBusy() && modal_.empty()) picture.keys = session_.Say()(texts::kBusyKeys);
  for (Dialog* dialog : shown_) picture.dialogs.push_back(dialog->Draw(picture.size));
  return picture;
}

}  // namespace hartframe::browse
