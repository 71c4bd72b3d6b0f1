#include "hartframe/browse/curses/CursesField.h"

#include <string>

#include "types/Utf8.h"

namespace hartframe::browse {

namespace {

// With a blank behind it, for the cursor.
std::string Contents(const FieldPicture& picture) {
  if (!picture.hidden) return picture.text + ' ';
  return std::string(ZAFHartTypes::utf8::Length(picture.text), '*') + ' ';
}

}  // namespace

CursesField::CursesField(WINDOW* window, int row, int column, int width,
                         const FieldPicture& picture) {
  part_.reset(derwin(window, 1, width, row, column));
  fields_[0] = new_field(1, width, 0, 0, 0, 0);
  if (!part_ || !fields_[0]) return;
  set_field_back(fields_[0], A_UNDERLINE);
  field_opts_off(fields_[0], O_STATIC);
  set_field_buffer(fields_[0], 0, Contents(picture).c_str());
  form_ = new_form(fields_);
  if (!form_) return;
  set_form_win(form_, window);
  set_form_sub(form_, part_.get());
  post_form(form_);
  form_driver(form_, REQ_BEG_FIELD);
  for (std::size_t i = 0; i < picture.cursor; ++i) form_driver(form_, REQ_NEXT_CHAR);
  pos_form_cursor(form_);
}

CursesField::~CursesField() {
  if (form_) {
    unpost_form(form_);
    free_form(form_);
  }
  if (fields_[0]) free_field(fields_[0]);
}

int CursesField::CursorColumn() const {
  return part_ ? getcurx(part_.get()) : 0;
}

}  // namespace hartframe::browse
