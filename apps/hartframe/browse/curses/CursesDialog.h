#pragma once

#include <memory>

#include "hartframe/browse/curses/Colours.h"
#include "hartframe/browse/curses/CursesField.h"
#include "hartframe/browse/curses/CursesList.h"

namespace hartframe::browse {

// A window in the middle of the screen, above all others, for its lifetime.
class CursesDialog {
 public:
  CursesDialog(const DialogPicture& picture, Size screen);

 private:
  void Print(const std::string& text, Look look = {});
  void DrawTitle(const DialogPicture& picture);
  void DrawField(const DialogPicture& picture);

  int width_;
  int row_ = 1;  // to be drawn next
  Window window_;
  Panel panel_;
  std::unique_ptr<CursesList> list_;
  std::unique_ptr<CursesField> field_;
};

}  // namespace hartframe::browse
