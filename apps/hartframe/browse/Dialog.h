#pragma once

#include <string>

#include "hartframe/Speech.h"
#include "hartframe/browse/Key.h"
#include "hartframe/browse/Picture.h"

namespace hartframe::browse {

// What every dialog shows.
struct DialogHead {
  DialogStyle style = DialogStyle::Information;
  std::string title;
  std::string text;  // may have several lines
  std::string help;  // F1 shows it in the text's place
};

// A window that gets the keys until it is done: accepted, or cancelled with Escape.
class Dialog {
 public:
  Dialog(const Speech& speech, DialogHead head) : speech_(speech), head_(std::move(head)) {}
  virtual ~Dialog() = default;
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;

  DialogPicture Draw(Size screen);
  void OnKey(const Key& key);
  void Cancel() { state_ = State::Cancelled; }
  bool IsDone() const { return state_ != State::Open; }
  bool IsAccepted() const { return state_ == State::Accepted; }

 protected:
  void Accept() { state_ = State::Accepted; }
  const Speech& Say() const { return speech_; }
  // Draws what is below the text into at most `room` lines.
  virtual void DrawBody(DialogPicture& picture, int room);
  // Width that the body would like to have.
  virtual std::size_t BodyWidth() const { return 0; }
  // What the keys do, in words, without Escape and help.
  virtual std::string Keys() const = 0;
  // False for a key that it has no use for.
  virtual bool OnBodyKey(const Key& key) = 0;

 private:
  enum class State { Open, Accepted, Cancelled };
  const std::string& Text() const { return showsHelp_ ? head_.help : head_.text; }
  int Width(Size screen) const;
  void DrawText(DialogPicture& picture, int room);
  bool ScrollText(const Key& key);

  const Speech& speech_;
  DialogHead head_;
  State state_ = State::Open;
  bool showsHelp_ = false;
  std::size_t textTop_ = 0;
  std::size_t textHeight_ = 1;
};

}  // namespace hartframe::browse
