#include "hartframe/browse/curses/CursesTerminal.h"

#include <langinfo.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <cstring>

#include "hartframe/browse/BrowseTexts.h"
#include "hartframe/browse/curses/Colours.h"
#include "hartframe/browse/curses/Curses.h"
#include "hartframe/browse/curses/CursesPicture.h"
#include "hartframe/browse/curses/EndSignals.h"
#include "hartframe/browse/curses/KeyReader.h"
#include "platform/Platform.h"

namespace hartframe::browse {

namespace {

// ncurses writes the characters of the locale; the program's texts are UTF-8. Numbers and dates
// have their own locale.
void UseUtf8() {
  std::setlocale(LC_CTYPE, "");
  if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) std::setlocale(LC_CTYPE, "C.UTF-8");
}

}  // namespace

CursesTerminal::CursesTerminal(const Speech& speech) {
  const char* type = std::getenv("TERM");
  if (isatty(STDIN_FILENO) == 0 || isatty(STDOUT_FILENO) == 0 || !type)
    throw CommandFailure(ExitCode::Usage, speech(texts::kNoTerminal));
  UseUtf8();
  // initscr() would end the process.
  if (!newterm(nullptr, stdout, stdin))
    throw CommandFailure(ExitCode::Usage, speech(texts::kBadTerminal, {OneLine(type)}));
  EndSignals::Install();
  cbreak();
  noecho();
  nonl();
  intrflush(stdscr, FALSE);
  set_escdelay(25);
  curs_set(0);
  DefineColours();
  keys_ = std::make_unique<KeyReader>();
  platform::Current().Loop().SetHostLoop(this);
}

CursesTerminal::~CursesTerminal() {
  platform::Current().Loop().SetHostLoop(nullptr);
  EndSignals::Remove();
  keys_.reset();
  endwin();
}

Size CursesTerminal::GetSize() const {
  return {getmaxy(stdscr), getmaxx(stdscr)};
}

void CursesTerminal::Show(const Picture& picture) {
  DrawPicture(picture);
}

void CursesTerminal::Beep() {
  beep();
}

bool CursesTerminal::IsGone() const {
  return isClosed_ || EndSignals::HasCome();
}

void CursesTerminal::RunHostEvents(platform::Milliseconds until) {
  if (!target_) return;
  target_->OnIdle();
  const auto wait = until - platform::Current().GetClock().Now();
  pollfd input{STDIN_FILENO, POLLIN, 0};
  const int time = isClosed_ ? 0 : static_cast<int>(std::max<std::int64_t>(wait.count(), 0));
  // A signal ends it: Ctrl-C, or another size of the terminal.
  poll(&input, 1, time);
  if ((input.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0) isClosed_ = true;
  ReadKeys();
}

void CursesTerminal::ReadKeys() {
  while (const auto key = keys_->Read()) {
    target_->OnKey(*key);
    target_->OnIdle();
  }
}

}  // namespace hartframe::browse
