#include "hartframe/browse/curses/CursesDialog.h"

#include <algorithm>

#include "hartframe/browse/TextLayout.h"

namespace hartframe::browse {

namespace {

constexpr int kFrame = 2;   // columns left and right of the text
constexpr int kBorder = 1;  // lines above and below

int HeightOf(const DialogPicture& picture) {
  int height = static_cast<int>(picture.text.size() + picture.note.size());
  if (picture.list) height += static_cast<int>(picture.list->height) + 1;
  if (picture.field) height += 2;
  return height + 2 + 2 * kBorder;  // the keys, with a blank line before
}

}  // namespace

CursesDialog::CursesDialog(const DialogPicture& picture, Size screen) : width_(picture.width) {
  const int height = std::min(HeightOf(picture), screen.rows);
  const int width = std::min(picture.width + 2 * kFrame, screen.columns);
  window_.reset(newwin(height, width, (screen.rows - height) / 2, (screen.columns - width) / 2));
  if (!window_) return;
  panel_.reset(new_panel(window_.get()));
  box(window_.get(), 0, 0);
  DrawTitle(picture);
  for (const std::string& line : picture.text) Print(line);
  if (picture.list) {
    ++row_;
    list_ = std::make_unique<CursesList>(window_.get(), row_, kFrame, width_, *picture.list);
    row_ += static_cast<int>(picture.list->height);
  }
  if (picture.field) DrawField(picture);
  const int fieldRow = row_ - 1;
  for (const std::string& line : picture.note) Print(line, LookOf(Tone::Bad));
  ++row_;
  Print(picture.keys, LookOf(Tone::Faint));
  if (field_) {
    curs_set(1);
    wmove(window_.get(), fieldRow, kFrame + field_->CursorColumn());
  }
}

void CursesDialog::Print(const std::string& text, Look look) {
  const std::string line = Fitted(text, static_cast<std::size_t>(width_));
  mvwaddstr(window_.get(), row_, kFrame, line.c_str());
  mvwchgat(window_.get(), row_, kFrame, width_, look.attributes, look.pair, nullptr);
  ++row_;
}

void CursesDialog::DrawTitle(const DialogPicture& picture) {
  const Look look = LookOf(picture.style);
  wattr_set(window_.get(), look.attributes, look.pair, nullptr);
  const std::string title = " " + picture.title + (picture.moreText ? " ↕ " : " ");
  const std::size_t room = static_cast<std::size_t>(width_);
  std::string fitted = Fitted(title, room);
  fitted.erase(fitted.find_last_not_of(' ') + 1);
  mvwaddstr(window_.get(), 0, kFrame, (fitted + " ").c_str());
  wattr_set(window_.get(), A_NORMAL, 0, nullptr);
}

void CursesDialog::DrawField(const DialogPicture& picture) {
  ++row_;
  field_ = std::make_unique<CursesField>(window_.get(), row_, kFrame, width_, *picture.field);
  ++row_;
}

}  // namespace hartframe::browse
