#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace hartframe {

// A script that completes the program's command line in bash; zsh takes it after bashcompinit.
std::string BashCompletion(const CLI::App& app);

}  // namespace hartframe
