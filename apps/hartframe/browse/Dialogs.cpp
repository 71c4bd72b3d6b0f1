#include "hartframe/browse/Dialogs.h"

#include <algorithm>

#include "hartframe/browse/BrowseTexts.h"
#include "hartframe/browse/TextLayout.h"
#include "types/Utf8.h"

namespace hartframe::browse {

std::string TextDialog::Keys() const {
  return Say()(texts::kEnterOk);
}

bool TextDialog::OnBodyKey(const Key& key) {
  if (key.code != KeyCode::Enter) return false;
  Accept();
  return true;
}

std::string TimedDialog::Keys() const {
  if (secondsLeft_ <= 0) return {};
  return Say()(texts::kSecondsLeft, {std::to_string(secondsLeft_)});
}

// --- one of a list ---

ChoiceDialog::ChoiceDialog(const Speech& speech, DialogHead head, std::vector<std::string> entries,
                           std::size_t selected)
    : Dialog(speech, std::move(head)), entries_(std::move(entries)) {
  state_.Select(selected);
  state_.Fit(entries_.size(), entries_.size());
}

std::size_t ChoiceDialog::BodyWidth() const {
  std::size_t width = 0;
  for (const std::string& entry : entries_)
    width = std::max(width, ZAFHartTypes::utf8::Length(entry) + 6);
  return width;
}

void ChoiceDialog::DrawBody(DialogPicture& picture, int room) {
  ListPicture list;
  list.height = std::clamp<std::size_t>(static_cast<std::size_t>(std::max(room, 1)), 1,
                                        std::max<std::size_t>(entries_.size(), 1));
  state_.Fit(entries_.size(), list.height);
  for (const std::string& entry : entries_) list.lines.push_back({entry, Tone::Plain});
  list.selected = state_.Selected();
  list.top = state_.Top();
  picture.list = std::move(list);
}

std::string ChoiceDialog::Keys() const {
  return Say()(texts::kEnterChooses);
}

bool ChoiceDialog::OnBodyKey(const Key& key) {
  if (state_.OnKey(key)) return true;
  if (key.code != KeyCode::Enter || entries_.empty()) return false;
  Accept();
  return true;
}

// --- any of a list ---

ChecksDialog::ChecksDialog(const Speech& speech, DialogHead head, std::vector<std::string> entries,
                           std::vector<bool> checked)
    : ChoiceDialog(speech, std::move(head), std::move(entries), 0), checked_(std::move(checked)) {}

void ChecksDialog::DrawBody(DialogPicture& picture, int room) {
  ChoiceDialog::DrawBody(picture, room);
  for (std::size_t i = 0; i < checked_.size(); ++i)
    picture.list->lines[i].text.insert(0, checked_[i] ? "[x] " : "[ ] ");
}

std::string ChecksDialog::Keys() const {
  return Joined({Say()(texts::kSpaceChecks), Say()(texts::kEnterOk)}, "  ");
}

bool ChecksDialog::OnBodyKey(const Key& key) {
  if (!key.Is(U' ')) return ChoiceDialog::OnBodyKey(key);
  if (!checked_.empty()) checked_[Selected()] = !checked_[Selected()];
  return true;
}

// --- a line ---

FieldDialog::FieldDialog(const Speech& speech, DialogHead head, std::string_view text, bool hidden,
                         Check check)
    : Dialog(speech, std::move(head)), line_(text), hidden_(hidden), check_(std::move(check)) {}

void FieldDialog::DrawBody(DialogPicture& picture, int room) {
  picture.field = FieldPicture{line_.Text(), line_.Cursor(), hidden_};
  picture.note = Wrapped(refusal_, static_cast<std::size_t>(picture.width));
  if (picture.note.size() > static_cast<std::size_t>(std::max(room - 2, 1)))
    picture.note.resize(static_cast<std::size_t>(std::max(room - 2, 1)));
}

std::string FieldDialog::Keys() const {
  return Say()(texts::kEnterOk);
}

bool FieldDialog::OnBodyKey(const Key& key) {
  if (key.code == KeyCode::Enter) {
    refusal_ = check_(line_.Text());
    if (refusal_.empty()) Accept();
    return true;
  }
  return line_.OnKey(key);
}

}  // namespace hartframe::browse
