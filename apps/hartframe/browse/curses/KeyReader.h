#pragma once

#include <optional>

#include "hartframe/browse/Key.h"
#include "hartframe/browse/curses/Window.h"

namespace hartframe::browse {

// Reads keys from the terminal that ncurses has in use.
class KeyReader {
 public:
  KeyReader();
  // The next key that was pressed; nothing when there is none. Keys that nobody needs are left out.
  std::optional<Key> Read();

 private:
  // Reading from a window draws it as it is just then; a pad is never drawn.
  Window pad_;
};

}  // namespace hartframe::browse
