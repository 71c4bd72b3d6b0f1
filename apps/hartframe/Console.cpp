#include "hartframe/Console.h"

#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include "types/Utf8.h"

namespace hartframe {

namespace {

namespace utf8 = ZAFHartTypes::utf8;

void Print(FILE* file, std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), file);
  std::fflush(file);
}

std::size_t TerminalWidth() {
  winsize size{};
  if (ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) return size.ws_col;
  return 80;
}

std::string Padded(std::string text, std::size_t width) {
  const std::size_t length = utf8::Length(text);
  if (length < width) text.append(width - length, ' ');
  return text;
}

std::string TableLine(const std::vector<std::string>& cells,
                      const std::vector<std::size_t>& widths) {
  std::string line;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    line += i + 1 < cells.size() ? Padded(cells[i], widths[i]) + "  " : cells[i];
  }
  line.erase(line.find_last_not_of(' ') + 1);
  return line;
}

std::string Bar(const std::string& title, int percent) {
  const std::string number = " " + std::to_string(percent) + " %";
  const std::size_t room = TerminalWidth() - 1;
  const std::size_t used = utf8::Length(title) + number.size() + 3;
  const std::size_t cells = std::min<std::size_t>(40, room > used ? room - used : 0);
  const std::size_t full = cells * static_cast<std::size_t>(percent) / 100;
  return title + " [" + std::string(full, '#') + std::string(cells - full, '-') + "]" + number;
}

// Nothing at the end of the input and when broken off. Looks for a break in short steps: a signal
// that comes just before the wait would not end it.
std::optional<char> ReadCharacter(const Console::BreakCheck& isBroken) {
  constexpr int kStep = 50;  // milliseconds
  pollfd input{STDIN_FILENO, POLLIN, 0};
  while (poll(&input, 1, kStep) <= 0) {
    if (isBroken()) return std::nullopt;
  }
  char c = 0;
  if (read(STDIN_FILENO, &c, 1) <= 0) return std::nullopt;
  return c;
}

}  // namespace

Console::Console()
    : canAsk_(isatty(STDIN_FILENO) != 0 && isatty(STDERR_FILENO) != 0),
      errorIsTerminal_(isatty(STDERR_FILENO) != 0) {}

void Console::Out(std::string_view line) {
  if (screen_) return screen_->Out(line);
  EraseBar();
  Print(stdout, std::string(line) + '\n');
}

void Console::Error(std::string_view line) {
  if (screen_) return screen_->Error(line);
  EraseBar();
  Print(stderr, std::string(line) + '\n');
}

void Console::Trace(std::string_view line) {
  if (!screen_) EraseBar();
  Print(stderr, std::string(line) + '\n');
}

void Console::Table(const std::vector<std::string>& headings,
                    const std::vector<std::vector<std::string>>& rows) {
  std::vector<std::size_t> widths;
  for (std::size_t i = 0; i < headings.size(); ++i) {
    std::size_t width = utf8::Length(headings[i]);
    for (const auto& row : rows) width = std::max(width, utf8::Length(row[i]));
    widths.push_back(width);
  }
  std::string text = TableLine(headings, widths);
  for (const auto& row : rows) text += '\n' + TableLine(row, widths);
  Out(text);
}

void Console::Progress(const std::string& title, double percent) {
  if (screen_) return screen_->Progress(title, percent);
  if (percent < 0) {
    EraseBar();
    lastShown_ = -1;
    return;
  }
  const int whole = static_cast<int>(std::clamp(percent, 0.0, 100.0));
  const int step = errorIsTerminal_ ? whole : whole / 25;
  if (step == lastShown_ || title.empty()) return;
  lastShown_ = step;
  if (errorIsTerminal_) {
    Print(stderr, "\r\033[K" + Bar(title, whole));
    barShown_ = true;
  } else {
    Print(stderr, title + ": " + std::to_string(whole) + " %\n");
  }
}

void Console::Status(std::string_view line) {
  if (!errorIsTerminal_ || line == status_) return;
  EraseBar();
  status_ = line;
  if (line.empty()) return;
  Print(stderr, line);
  barShown_ = true;
}

std::optional<std::string> Console::Ask(std::string_view question, const BreakCheck& isBroken) {
  return canAsk_ ? Prompt(question, isBroken) : std::nullopt;
}

std::optional<std::string> Console::Prompt(std::string_view question, const BreakCheck& isBroken) {
  EraseBar();
  Print(stderr, question);
  std::string line;
  while (true) {
    const auto c = ReadCharacter(isBroken);
    if (!c) {
      Print(stderr, "\n");
      return std::nullopt;
    }
    if (*c == '\n') return line;
    line += *c;
  }
}

void Console::EraseBar() {
  if (!barShown_) return;
  Print(stderr, "\r\033[K");
  barShown_ = false;
  status_.clear();
}

}  // namespace hartframe
