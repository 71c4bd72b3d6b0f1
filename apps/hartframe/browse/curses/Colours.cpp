#include "hartframe/browse/curses/Colours.h"

namespace hartframe::browse {

namespace {

enum Pair : short { kGreen = 1, kYellow, kRed, kCyan, kMagenta };

}  // namespace

void DefineColours() {
  if (!has_colors()) return;
  start_color();
  const short background =
      use_default_colors() == OK ? static_cast<short>(-1) : static_cast<short>(COLOR_BLACK);
  init_pair(kGreen, COLOR_GREEN, background);
  init_pair(kYellow, COLOR_YELLOW, background);
  init_pair(kRed, COLOR_RED, background);
  init_pair(kCyan, COLOR_CYAN, background);
  init_pair(kMagenta, COLOR_MAGENTA, background);
}

Look LookOf(Tone tone) {
  switch (tone) {
    case Tone::Faint:
      return {A_DIM, 0};
    case Tone::Good:
      return {A_NORMAL, kGreen};
    case Tone::Pending:
      return {A_BOLD, kYellow};
    case Tone::Different:
      return {A_BOLD, kMagenta};
    case Tone::Bad:
      return {A_BOLD, kRed};
    default:
      return {};
  }
}

Look LookOf(DialogStyle style) {
  switch (style) {
    case DialogStyle::Question:
      return {A_BOLD, kMagenta};
    case DialogStyle::Warning:
      return {A_BOLD, kYellow};
    case DialogStyle::Error:
      return {A_BOLD | A_REVERSE, kRed};
    case DialogStyle::Input:
      return {A_BOLD, kGreen};
    default:
      return {A_BOLD, kCyan};
  }
}

}  // namespace hartframe::browse
