#pragma once

#include <memory>

#include "hartframe/browse/curses/Curses.h"

namespace hartframe::browse {

struct WindowDeleter {
  void operator()(WINDOW* window) const { delwin(window); }
};
using Window = std::unique_ptr<WINDOW, WindowDeleter>;

struct PanelDeleter {
  void operator()(PANEL* panel) const { del_panel(panel); }
};
using Panel = std::unique_ptr<PANEL, PanelDeleter>;

}  // namespace hartframe::browse
