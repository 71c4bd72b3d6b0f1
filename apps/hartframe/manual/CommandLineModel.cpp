#include "hartframe/manual/CommandLineModel.h"

namespace hartframe {

namespace {

// The parser appends what it checks to the type's name: "N:INT in [0 - 100]".
std::string TypeOf(const CLI::Option& option) {
  if (option.get_items_expected_max() == 0) return "";
  const std::string type = option.get_type_name();
  return type.substr(0, type.find(':'));
}

DocumentedOption Document(const CLI::Option& option) {
  const bool isArgument = option.get_positional();
  return {option.get_name(isArgument), TypeOf(option), option.get_description(), isArgument,
          option.get_required()};
}

}  // namespace

std::vector<DocumentedOption> DocumentedOptions(const CLI::App& app) {
  std::vector<DocumentedOption> documented;
  for (const CLI::Option* option : app.get_options()) {
    if (!option->get_group().empty()) documented.push_back(Document(*option));
  }
  return documented;
}

std::vector<DocumentedCommand> DocumentedCommands(const CLI::App& app) {
  std::vector<DocumentedCommand> documented;
  for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
    if (command->get_group().empty()) continue;
    documented.push_back(
        {command->get_name(), command->get_description(), DocumentedOptions(*command)});
  }
  return documented;
}

}  // namespace hartframe
