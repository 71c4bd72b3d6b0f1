#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace hartframe {

// An option or argument of the command line as its documentation tells it.
struct DocumentedOption {
  std::string name;  // "--dtm"; "changes" for an argument
  std::string type;  // "FILE", "en|de"; "" for a flag
  std::string description;
  bool isArgument = false;
  bool isRequired = false;
};

struct DocumentedCommand {
  std::string name;
  std::string description;
  std::vector<DocumentedOption> options;
};

DocumentedOption Documented(const CLI::Option& option);
// What the parser knows, without what is not for users; of the program itself when no command.
std::vector<DocumentedOption> DocumentedOptions(const CLI::App& app);
std::vector<DocumentedCommand> DocumentedCommands(const CLI::App& app);

}  // namespace hartframe
