#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "hartframe/Options.h"

namespace hartframe {

// Adds commands to the command line; the one that is given is kept in the options.
class CommandAdder {
 public:
  CommandAdder(CLI::App& app, Options& options) : app_(app), options_(options) {}

  CLI::App& Add(CommandKind kind, const std::string& name, const std::string& description) {
    CLI::App& command = *app_.add_subcommand(name, description);
    command.callback([&options = options_, kind] { options.command = kind; });
    return command;
  }

 private:
  CLI::App& app_;
  Options& options_;
};

}  // namespace hartframe
