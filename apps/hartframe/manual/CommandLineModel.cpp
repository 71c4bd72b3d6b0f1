#include "hartframe/manual/CommandLineModel.h"

#include <algorithm>

namespace hartframe {

namespace {

// The parser appends what it checks to the type's name: "N:INT in [0 - 100]", "a|b:{a,b}".
std::string TypeOf(const CLI::Option& option) {
  if (option.get_items_expected_max() == 0) return "";
  const std::string type = option.get_type_name();
  std::size_t end = type.size();
  for (const char* check : {":INT in [", ":value in {", ":{"})
    end = std::min(end, type.find(check));
  return type.substr(0, end);
}

// The description with the range that is checked: "Seconds (default: 1; 1 to 3600)".
std::string DescriptionOf(const CLI::Option& option) {
  constexpr std::string_view kRange = " in [";
  std::string text = option.get_description();
  const std::string type = option.get_type_name();
  const std::size_t start = type.find(kRange);
  const std::size_t middle = start == std::string::npos ? start : type.find(" - ", start);
  const std::size_t end = middle == std::string::npos ? middle : type.find(']', middle);
  if (end == std::string::npos) return text;
  const std::size_t first = start + kRange.size();
  const std::string range =
      type.substr(first, middle - first) + " to " + type.substr(middle + 3, end - middle - 3);
  if (!text.ends_with(')')) return text + " (" + range + ")";
  text.pop_back();
  return text + "; " + range + ")";
}

}  // namespace

DocumentedOption Documented(const CLI::Option& option) {
  const bool isArgument = option.get_positional();
  return {option.get_name(isArgument), TypeOf(option), DescriptionOf(option), isArgument,
          option.get_required()};
}

std::vector<DocumentedOption> DocumentedOptions(const CLI::App& app) {
  std::vector<DocumentedOption> documented;
  for (const CLI::Option* option : app.get_options()) {
    if (!option->get_group().empty()) documented.push_back(Documented(*option));
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
