#pragma once

namespace hartframe::browse {

enum class KeyCode {
  Character,
  Enter,
  Escape,
  Up,
  Down,
  Left,
  Right,
  PageUp,
  PageDown,
  Home,
  End,
  Backspace,
  Tab,
  Delete,
  Help,    // F1
  Resize,  // the terminal has another size
};

// What the user has pressed.
struct Key {
  KeyCode code = KeyCode::Character;
  char32_t character = 0;  // of KeyCode::Character

  bool Is(char32_t c) const { return code == KeyCode::Character && character == c; }
};

}  // namespace hartframe::browse
