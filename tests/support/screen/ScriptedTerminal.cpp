#include "support/screen/ScriptedTerminal.h"

#include <gtest/gtest.h>

namespace support {

using hartframe::browse::DialogPicture;
using hartframe::browse::Key;
using hartframe::browse::ListPicture;

namespace {

constexpr platform::Milliseconds kPatience{120'000};  // of the manual clock
constexpr platform::Milliseconds kMoment{50};

void Append(const ListPicture& list, std::string& text) {
  const std::size_t end = std::min(list.lines.size(), list.top + list.height);
  for (std::size_t i = list.top; i < end; ++i)
    text += (i == list.selected ? ">" : " ") + list.lines[i].text + "\n";
}

void Append(const DialogPicture& dialog, std::string& text) {
  text += "[" + dialog.title + "]\n";
  for (const std::string& line : dialog.text) text += line + "\n";
  if (dialog.list) Append(*dialog.list, text);
  if (dialog.field) text += "_" + dialog.field->text + "_\n";
  for (const std::string& line : dialog.note) text += line + "\n";
  text += dialog.keys + "\n";
}

}  // namespace

std::string ScriptedTerminal::Text() const {
  std::string text = picture_.tooSmall + picture_.path + "  " + picture_.pathNote + "\n";
  text += picture_.head + "\n";
  Append(picture_.items, text);
  if (picture_.percent >= 0) text += picture_.progress + "\n";
  text += picture_.message + "\n" + picture_.status + "\n" + picture_.keys + "\n";
  for (const DialogPicture& dialog : picture_.dialogs) Append(dialog, text);
  return text;
}

void ScriptedTerminal::RunHostEvents(platform::Milliseconds until) {
  if (!target_) return;
  target_->OnIdle();
  if (steps_.empty()) {
    isGone_ = true;
  } else if (const Step step = steps_.front(); Do(step)) {
    waited_ = {};
    return;
  }
  const auto time = std::clamp(until - clock_.Now(), platform::Milliseconds{1}, kMoment);
  clock_.Advance(time);
  waited_ += time;
  if (waited_ < kPatience || isGone_) return;
  ADD_FAILURE() << "waited in vain, " << steps_.size() << " steps from the end:\n" << Text();
  steps_.clear();
}

// False when it has to wait.
bool ScriptedTerminal::Do(const Step& step) {
  if (const auto* sees = std::get_if<Sees>(&step)) {
    if (Text().find(sees->text) == std::string::npos) return false;
    steps_.pop_front();
  } else if (const auto* hides = std::get_if<Hides>(&step)) {
    if (Text().find(hides->text) != std::string::npos) return false;
    steps_.pop_front();
  } else if (const auto* until = std::get_if<Until>(&step)) {
    if (!(*until)()) return false;
    steps_.pop_front();
  } else {
    const Step taken = step;
    steps_.pop_front();  // it may open a dialog, and with it come to the next steps
    if (const auto* key = std::get_if<Key>(&taken))
      target_->OnKey(*key);
    else
      std::get<Now>(taken).action();
  }
  return true;
}

}  // namespace support
