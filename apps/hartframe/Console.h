#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hartframe {

// What takes the console's place while a screen is shown.
class ConsoleScreen {
 public:
  virtual ~ConsoleScreen() = default;
  // Each may have several lines.
  virtual void Out(std::string_view text) = 0;
  virtual void Error(std::string_view text) = 0;
  virtual void Progress(const std::string& title, double percent) = 0;
};

// The terminal, or the pipes in its place. Results go to standard output, progress, messages and
// questions to standard error.
class Console {
 public:
  Console();

  // Everything goes to the screen from now on; nothing ends that. The screen outlives it.
  void SetScreen(ConsoleScreen* screen) { screen_ = screen; }

  // Somebody can be asked: standard input and standard error are a terminal.
  bool CanAsk() const { return canAsk_ && !screen_; }
  bool ShowsBar() const { return errorIsTerminal_; }

  void Out(std::string_view line);
  void Error(std::string_view line);
  // A line of a trace: to standard error also while a screen has the terminal.
  void Trace(std::string_view line);
  // Prints a table with its headings; the last column is as wide as it is.
  void Table(const std::vector<std::string>& headings,
             const std::vector<std::vector<std::string>>& rows);
  // Shows how far something is, 0 to 100: a bar that is drawn over on a terminal, a line each
  // quarter in a pipe. Below 0 ends it.
  void Progress(const std::string& title, double percent);
  // Shows a line that the next one draws over, on a terminal; "" ends it.
  void Status(std::string_view line);
  // Breaks a question off when it says so; asked a few times a second.
  using BreakCheck = std::function<bool()>;
  // The answer without its line end; nothing when there is nobody to ask, at the end of the input
  // and when it was broken off.
  std::optional<std::string> Ask(std::string_view question, const BreakCheck& isBroken);
  // The same for one who may also be a script: standard input may be a pipe.
  std::optional<std::string> Prompt(std::string_view question, const BreakCheck& isBroken);

 private:
  void EraseBar();

  ConsoleScreen* screen_ = nullptr;
  bool canAsk_;
  bool errorIsTerminal_;
  bool barShown_ = false;
  std::string status_;
  int lastShown_ = -1;  // percent on a terminal, quarter in a pipe
};

}  // namespace hartframe
