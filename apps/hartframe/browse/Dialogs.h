#pragma once

#include <functional>

#include "hartframe/browse/Dialog.h"
#include "hartframe/browse/LineEdit.h"
#include "hartframe/browse/ListState.h"

namespace hartframe::browse {

// A text to be read.
class TextDialog : public Dialog {
 public:
  using Dialog::Dialog;

 protected:
  std::string Keys() const override;
  bool OnBodyKey(const Key& key) override;
};

// A text that goes away by itself; with the time left when that is told.
class TimedDialog : public Dialog {
 public:
  using Dialog::Dialog;
  void SetSecondsLeft(int seconds) { secondsLeft_ = seconds; }

 protected:
  std::string Keys() const override;
  bool OnBodyKey(const Key&) override { return false; }

 private:
  int secondsLeft_ = 0;
};

// One entry of a list.
class ChoiceDialog : public Dialog {
 public:
  ChoiceDialog(const Speech& speech, DialogHead head, std::vector<std::string> entries,
               std::size_t selected);
  std::size_t Selected() const { return state_.Selected(); }

 protected:
  void DrawBody(DialogPicture& picture, int room) override;
  std::size_t BodyWidth() const override;
  std::string Keys() const override;
  bool OnBodyKey(const Key& key) override;

 private:
  std::vector<std::string> entries_;
  ListState state_;
};

// Any of the entries of a list.
class ChecksDialog : public ChoiceDialog {
 public:
  ChecksDialog(const Speech& speech, DialogHead head, std::vector<std::string> entries,
               std::vector<bool> checked);
  const std::vector<bool>& Checked() const { return checked_; }

 protected:
  void DrawBody(DialogPicture& picture, int room) override;
  std::string Keys() const override;
  bool OnBodyKey(const Key& key) override;

 private:
  std::vector<bool> checked_;
};

// A line to be typed. What is not accepted stays, with the reason below it.
class FieldDialog : public Dialog {
 public:
  // Says why a text is not accepted; "" when it is.
  using Check = std::function<std::string(const std::string&)>;

  FieldDialog(const Speech& speech, DialogHead head, std::string_view text, bool hidden,
              Check check);
  std::string Text() const { return line_.Text(); }

 protected:
  void DrawBody(DialogPicture& picture, int room) override;
  std::string Keys() const override;
  bool OnBodyKey(const Key& key) override;

 private:
  LineEdit line_;
  bool hidden_;
  Check check_;
  std::string refusal_;
};

}  // namespace hartframe::browse
