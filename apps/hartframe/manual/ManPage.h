#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace hartframe {

// The program's manual page, section 1, in the man macros of troff. Made of the command line's own
// descriptions, so that it tells what the program takes.
std::string ManPage(const CLI::App& app);

}  // namespace hartframe
