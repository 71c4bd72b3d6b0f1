#pragma once

#include "hartframe/browse/Picture.h"
#include "hartframe/browse/curses/Window.h"

namespace hartframe::browse {

// A line that is being typed, in a part of a window, for its lifetime. Scrolls to the cursor.
class CursesField {
 public:
  CursesField(WINDOW* window, int row, int column, int width, const FieldPicture& picture);
  ~CursesField();
  CursesField(const CursesField&) = delete;
  CursesField& operator=(const CursesField&) = delete;

  // The column of the cursor in the field.
  int CursorColumn() const;

 private:
  Window part_;
  FIELD* fields_[2] = {nullptr, nullptr};  // ends with nullptr
  FORM* form_ = nullptr;
};

}  // namespace hartframe::browse
