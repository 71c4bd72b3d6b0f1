#include "hartframe/browse/curses/CursesPicture.h"

#include <algorithm>
#include <cmath>

#include "hartframe/browse/TextLayout.h"
#include "hartframe/browse/curses/CursesDialog.h"
#include "types/Utf8.h"

namespace hartframe::browse {

namespace {

void Print(int row, const std::string& text, Look look, int columns) {
  mvwaddstr(stdscr, row, 0, Fitted(text, static_cast<std::size_t>(columns)).c_str());
  mvwchgat(stdscr, row, 0, -1, look.attributes, look.pair, nullptr);
}

std::string PathLine(const Picture& picture) {
  const std::size_t used =
      ZAFHartTypes::utf8::Length(picture.path) + ZAFHartTypes::utf8::Length(picture.pathNote) + 1;
  const auto columns = static_cast<std::size_t>(picture.size.columns);
  return picture.path + std::string(columns - std::min(columns, used), ' ') + picture.pathNote;
}

// The part that is done is drawn in reverse.
void DrawProgress(const Picture& picture, int row) {
  const double percent = std::clamp(picture.percent, 0.0, 100.0);
  const std::string text =
      " " + picture.progress + " " + std::to_string(std::lround(percent)) + " %";
  Print(row, text, {}, picture.size.columns);
  const int done = static_cast<int>(picture.size.columns * percent / 100);
  mvwchgat(stdscr, row, 0, done, A_REVERSE, LookOf(Tone::Good).pair, nullptr);
}

void DrawFrame(const Picture& picture) {
  const int rows = picture.size.rows;
  const int columns = picture.size.columns;
  const Look bar{A_REVERSE, 0};
  Print(0, PathLine(picture), {A_REVERSE | A_BOLD, 0}, columns);
  if (!picture.head.empty()) Print(1, picture.head, {A_UNDERLINE, 0}, columns);
  mvwhline(stdscr, rows - 4, 0, 0, columns);
  if (picture.percent >= 0)
    DrawProgress(picture, rows - 3);
  else
    Print(rows - 3, " " + picture.message, LookOf(picture.messageTone), columns);
  Print(rows - 2, picture.status, {}, columns);
  Print(rows - 1, picture.keys, bar, columns);
}

}  // namespace

void DrawPicture(const Picture& picture) {
  curs_set(0);
  werase(stdscr);
  if (!picture.tooSmall.empty()) {
    const auto lines = Wrapped(picture.tooSmall, static_cast<std::size_t>(picture.size.columns));
    for (std::size_t i = 0; i < lines.size(); ++i)
      mvwaddstr(stdscr, static_cast<int>(i), 0, lines[i].c_str());
    wnoutrefresh(stdscr);
    doupdate();
    return;
  }
  DrawFrame(picture);
  const int firstRow = picture.head.empty() ? 1 : 2;
  const CursesList items(stdscr, firstRow, 0, picture.size.columns, picture.items);
  std::vector<std::unique_ptr<CursesDialog>> dialogs;
  for (const DialogPicture& dialog : picture.dialogs)
    dialogs.push_back(std::make_unique<CursesDialog>(dialog, picture.size));
  wnoutrefresh(stdscr);
  update_panels();
  doupdate();
}

}  // namespace hartframe::browse
