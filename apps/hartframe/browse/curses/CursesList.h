#pragma once

#include <vector>

#include "hartframe/browse/Picture.h"
#include "hartframe/browse/curses/Window.h"

namespace hartframe::browse {

// A list in a part of a window, for its lifetime.
class CursesList {
 public:
  CursesList(WINDOW* window, int row, int column, int width, const ListPicture& picture);
  ~CursesList();
  CursesList(const CursesList&) = delete;
  CursesList& operator=(const CursesList&) = delete;

 private:
  void AddItems(const ListPicture& picture, int width);
  void Colour(const ListPicture& picture) const;

  Window part_;
  std::vector<std::string> texts_;  // which the items point to
  std::vector<ITEM*> items_;        // ends with nullptr
  MENU* menu_ = nullptr;
};

}  // namespace hartframe::browse
