#include "hartframe/browse/LineEdit.h"

#include "types/Utf8.h"

namespace hartframe::browse {

namespace utf8 = ZAFHartTypes::utf8;

LineEdit::LineEdit(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) text_ += utf8::Next(text, at);
  cursor_ = text_.size();
}

std::string LineEdit::Text() const {
  std::string text;
  for (const char32_t c : text_) utf8::Append(text, c);
  return text;
}

bool LineEdit::OnKey(const Key& key) {
  switch (key.code) {
    case KeyCode::Character:
      text_.insert(cursor_++, 1, key.character);
      return true;
    case KeyCode::Left:
      if (cursor_ > 0) --cursor_;
      return true;
    case KeyCode::Right:
      if (cursor_ < text_.size()) ++cursor_;
      return true;
    case KeyCode::Home:
      cursor_ = 0;
      return true;
    case KeyCode::End:
      cursor_ = text_.size();
      return true;
    case KeyCode::Backspace:
      if (cursor_ > 0) text_.erase(--cursor_, 1);
      return true;
    case KeyCode::Delete:
      if (cursor_ < text_.size()) text_.erase(cursor_, 1);
      return true;
    default:
      return false;
  }
}

}  // namespace hartframe::browse
