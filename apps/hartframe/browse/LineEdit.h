#pragma once

#include <string>

#include "hartframe/browse/Key.h"

namespace hartframe::browse {

// A line of text that is being typed.
class LineEdit {
 public:
  explicit LineEdit(std::string_view text);

  std::string Text() const;
  // In characters, from 0 (before the first).
  std::size_t Cursor() const { return cursor_; }
  // True when the key is one of a line's.
  bool OnKey(const Key& key);

 private:
  std::u32string text_;
  std::size_t cursor_;
};

}  // namespace hartframe::browse
