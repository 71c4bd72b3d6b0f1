#include "debugger/StandardTerminal.h"

#include <unistd.h>

#include <cstdlib>
#include <iostream>

#include "types/Failure.h"

namespace ZAFHartDebugger {

bool StandardErrorShowsColours() {
  const char* const noColour = std::getenv("NO_COLOR");
  const char* const kind = std::getenv("TERM");
  const bool isAllowed = !noColour || *noColour == '\0';
  return isAllowed && kind && std::string_view(kind) != "dumb" && isatty(STDERR_FILENO) != 0;
}

StandardTerminal::StandardTerminal()
    : StandardTerminal(std::cin, std::cerr, StandardErrorShowsColours()) {}

StandardTerminal::StandardTerminal(std::istream& input, std::ostream& output, bool showsColours)
    : input_(input), output_(output), showsColours_(showsColours) {}

void StandardTerminal::WriteTo(const std::filesystem::path& file) {
  std::ofstream opened(file);
  if (!opened) {
    throw ZAFHartTypes::Failure(
        ZAFHartTypes::ErrorNumber::PathFileAccess, "Debugger",
        "The trace cannot be written to \"" + file.string() + "\"; name a file that can be made.");
  }
  file_ = std::move(opened);
}

void StandardTerminal::Write(std::string_view line) {
  (file_.is_open() ? file_ : output_) << line << std::endl;
}

std::optional<std::string> StandardTerminal::ReadLine(std::string_view prompt) {
  output_ << prompt << std::flush;
  std::string line;
  if (!std::getline(input_, line)) return std::nullopt;
  return line;
}

}  // namespace ZAFHartDebugger
