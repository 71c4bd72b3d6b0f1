#include "hartframe/browse/curses/CursesList.h"

#include <algorithm>

#include "hartframe/browse/TextLayout.h"
#include "hartframe/browse/curses/Colours.h"

namespace hartframe::browse {

namespace {

// The menu library takes no item that it cannot print.
ITEM* NewItem(std::string& text) {
  ITEM* item = new_item(text.c_str(), nullptr);
  if (item) return item;
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c < ' ' || c > '~'; }, '?');
  return new_item(text.c_str(), nullptr);
}

}  // namespace

CursesList::CursesList(WINDOW* window, int row, int column, int width, const ListPicture& picture) {
  const int height = static_cast<int>(std::min(picture.height, picture.lines.size()));
  if (height == 0 || width <= 0) return;
  part_.reset(derwin(window, height, width, row, column));
  AddItems(picture, width);
  menu_ = new_menu(items_.data());
  if (!part_ || !menu_) return;
  set_menu_win(menu_, window);
  set_menu_sub(menu_, part_.get());
  set_menu_format(menu_, height, 1);
  set_menu_mark(menu_, "");
  set_menu_fore(menu_, A_REVERSE);
  set_top_row(menu_, static_cast<int>(picture.top));
  set_current_item(menu_, items_[picture.selected]);
  post_menu(menu_);
  Colour(picture);
}

CursesList::~CursesList() {
  if (menu_) {
    unpost_menu(menu_);
    free_menu(menu_);
  }
  for (ITEM* item : items_) {
    if (item) free_item(item);
  }
}

void CursesList::AddItems(const ListPicture& picture, int width) {
  texts_.reserve(picture.lines.size());
  for (const Line& line : picture.lines) {
    texts_.push_back(Fitted(line.text, static_cast<std::size_t>(width)));
    items_.push_back(NewItem(texts_.back()));
  }
  items_.push_back(nullptr);
}

// The menu has one look for all items but the selected one.
void CursesList::Colour(const ListPicture& picture) const {
  const std::size_t last = std::min(picture.lines.size(), picture.top + picture.height);
  for (std::size_t i = picture.top; i < last; ++i) {
    const Look look = LookOf(picture.lines[i].tone);
    const attr_t selected = i == picture.selected ? A_REVERSE : A_NORMAL;
    mvwchgat(part_.get(), static_cast<int>(i - picture.top), 0, -1, look.attributes | selected,
             look.pair, nullptr);
  }
}

}  // namespace hartframe::browse
