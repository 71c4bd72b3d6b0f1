#include "hartframe/manual/Completion.h"

#include <algorithm>
#include <map>

#include "hartframe/manual/CommandLineModel.h"

namespace hartframe {

namespace {

using Options = std::vector<DocumentedOption>;
using Commands = std::vector<DocumentedCommand>;

std::string NamesOf(const Options& options) {
  std::string names;
  for (const DocumentedOption& option : options) {
    if (option.isArgument) continue;
    std::string each = option.name;
    std::replace(each.begin(), each.end(), ',', ' ');
    names += (names.empty() ? "" : " ") + each;
  }
  return names;
}

std::string NamesOf(const Commands& commands, char separator) {
  std::string names;
  for (const DocumentedCommand& command : commands) {
    if (!names.empty()) names += separator;
    names += command.name;
  }
  return names;
}

// What completes a value of the type; "" for what nobody can guess.
std::string GeneratorOf(const std::string& type) {
  if (type == "FILE") return "-f";
  if (type == "FOLDER") return "-d";
  if (type.find('|') == std::string::npos) return "";
  std::string choices = type;
  std::replace(choices.begin(), choices.end(), '|', ' ');
  return "-W '" + choices + "'";
}

std::string Reply(const std::string& generator) {
  if (generator.empty()) return "return";
  return "mapfile -t COMPREPLY < <(compgen " + generator + " -- \"$word\"); return";
}

// A line per kind of value: the options that take it, and what completes it.
std::string ValueCases(const Options& options, const Commands& commands) {
  std::map<std::string, std::string> takers;
  const auto collect = [&](const Options& some) {
    for (const DocumentedOption& option : some) {
      if (option.isArgument || option.type.empty()) continue;
      std::string& names = takers[GeneratorOf(option.type)];
      names += (names.empty() ? "" : "|") + option.name;
    }
  };
  collect(options);
  for (const DocumentedCommand& command : commands) collect(command.options);
  std::string cases;
  for (const auto& [generator, names] : takers) {
    cases += "    " + names + ") " + Reply(generator) + ";;\n";
  }
  return cases;
}

std::string CommandCases(const Commands& commands) {
  std::string cases;
  for (const DocumentedCommand& command : commands) {
    const bool takesFile = std::any_of(
        command.options.begin(), command.options.end(),
        [](const DocumentedOption& each) { return each.isArgument && each.type == "FILE"; });
    cases += "    " + command.name + ") own='" + NamesOf(command.options) + "'" +
             (takesFile ? " files=-f" : "") + ";;\n";
  }
  return cases;
}

}  // namespace

std::string BashCompletion(const CLI::App& app) {
  const Options options = DocumentedOptions(app);
  const Commands commands = DocumentedCommands(app);
  return R"(# bash completion for hartframe
_hartframe() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command= own= files= each
  case $before in
)" + ValueCases(options, commands) +
         R"(  esac
  for each in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
    case $each in
      )" +
         NamesOf(commands, '|') + R"() command=$each; break;;
    esac
  done
  case $command in
)" + CommandCases(commands) +
         R"(    '') own=')" + NamesOf(commands, ' ') + R"(';;
  esac
  [[ $word == -* ]] && files=
  mapfile -t COMPREPLY < <(compgen $files -W "$own )" +
         NamesOf(options) + R"(" -- "$word")
}
complete -o bashdefault -F _hartframe hartframe
)";
}

}  // namespace hartframe
