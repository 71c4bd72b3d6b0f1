#pragma once

#include <filesystem>
#include <fstream>
#include <iosfwd>

#include "debugger/Terminal.h"

namespace ZAFHartDebugger {

// Standard error shows colours: it is a terminal, and the environment (NO_COLOR, TERM) allows them.
bool StandardErrorShowsColours();

// Two streams. At first standard input and standard error.
class StandardTerminal : public Terminal {
 public:
  StandardTerminal();
  // The streams outlive the terminal.
  StandardTerminal(std::istream& input, std::ostream& output, bool showsColours = false);

  // Lines go to a new file from now on, questions stay where they are. Raises PathFileAccess when
  // it cannot be made.
  void WriteTo(const std::filesystem::path& file);

  void Write(std::string_view line) override;
  std::optional<std::string> ReadLine(std::string_view prompt) override;
  bool ShowsColours() const override { return showsColours_ && !file_.is_open(); }

 private:
  std::istream& input_;
  std::ostream& output_;
  std::ofstream file_;
  bool showsColours_;
};

}  // namespace ZAFHartDebugger
