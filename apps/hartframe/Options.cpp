#include "hartframe/Options.h"

#include <cstdlib>
#include <iostream>
#include <map>

#include "hartframe/CommandAdder.h"
#include "hartframe/ExitCode.h"
#include "hartframe/link/LinkOptions.h"
#include "hartframe/manual/Completion.h"
#include "hartframe/manual/HelpFormatter.h"
#include "hartframe/manual/ManPage.h"
#include "platform/Version.h"

namespace hartframe {

namespace {

namespace fs = std::filesystem;
using ZAFHartTypes::UserLevel;

const std::vector<std::string> kLanguages{"en", "de", "fr", "it", "es", "kt"};

const std::map<std::string, UserLevel> kUserLevels{{"observer", UserLevel::Observer},
                                                   {"operator", UserLevel::Operator},
                                                   {"maintenance", UserLevel::Maintenance},
                                                   {"engineer", UserLevel::PlanningEngineer}};

// Folder of the running program; the DTMs that ship with it stand beside it.
fs::path ProgramFolder() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  return error ? fs::current_path() : program.parent_path();
}

void AddDtmOptions(CLI::App& app, Options& options) {
  app.add_option("--dtm", options.dtm, "DTM to load: the project of its classes, \"Vendor\"")
      ->type_name("NAME");
  app.add_option("--dtm-path", options.pluginPath,
                 "Folder with DTM plug-ins, searched before the program's own (repeatable)")
      ->type_name("FOLDER")
      ->allow_extra_args(false);
  app.add_option("--user-level", options.userLevel,
                 "Rights of the user; an observer cannot write (default: engineer)")
      ->transform(CLI::CheckedTransformer(kUserLevels, CLI::ignore_case))
      ->type_name("observer|operator|maintenance|engineer");
}

void AddDataSetOption(CLI::App& app, Options& options) {
  app.add_option("--dataset", options.dataSetFile,
                 "Data set on disk to work on: restored at the start, kept at the end")
      ->type_name("FILE");
}

void AddOutputOptions(CLI::App& app, Options& options) {
  app.add_option("--lang", options.language, "Language of texts (default: the environment's)")
      ->type_name("en|de|fr|it|es|kt")
      ->check(CLI::IsMember(kLanguages));
  app.add_flag("--json", options.json, "Machine-readable output");
}

void AddDataSetCommands(CommandAdder& adder, Options& options) {
  CLI::App& save = adder.Add(CommandKind::Save, "save",
                             "Load the data set from the device, with changes if given, and save "
                             "it in a file");
  save.add_option("file", options.saveFile, "The data set file, which is made or replaced")
      ->required()
      ->type_name("FILE");
  save.add_option("changes", options.changes, "Changes to make, to be written later")
      ->type_name("NAME=VALUE");
  save.add_flag("--no-upload", options.noUpload,
                "Save what there is without the device: the DTM's defaults, or the --dataset");
  save.add_flag("--discard", options.discard, "Give up pending changes of the file");

  CLI::App& pair = adder.Add(CommandKind::Pair, "pair",
                             "Change the --dataset and bring it and the device together");
  pair.add_option("changes", options.changes, "Changes to make in the data set")
      ->type_name("NAME=VALUE");
  CLI::Option* const uploads = pair.add_flag("--upload", options.uploadPair,
                                             "First load the device's values into the data set");
  pair.add_flag("--download", options.downloadPair, "Then write what differs to the device")
      ->excludes(uploads);
  pair.add_flag("--discard", options.discard, "Give up pending changes without asking")
      ->needs(uploads);

  CLI::App& compare = adder.Add(CommandKind::Compare, "compare",
                                "Compare the --dataset with the device, variable by variable");
  compare.add_option("names", options.names, "Only these; * and ? stand for other characters")
      ->type_name("NAME");
  compare.add_flag("--differences", options.differencesOnly, "Only what differs");
}

void AddTransferCommands(CommandAdder& adder, Options& options) {
  CLI::App& upload = adder.Add(CommandKind::Upload, "upload", "Load the data set from the device");
  upload.add_flag("--discard", options.discard, "Give up pending changes without asking");

  CLI::App& download = adder.Add(CommandKind::Download, "download",
                                 "Write the whole data set to the device, with changes if given");
  download.add_option("changes", options.changes, "Changes to make first")->type_name("NAME=VALUE");

  CLI::App& write = adder.Add(CommandKind::Write, "write",
                              "Change variables and write them, and what is still pending");
  write.add_option("changes", options.changes, "Changes to make")->type_name("NAME=VALUE");

  CLI::App& read = adder.Add(CommandKind::Read, "read", "Read variables from the device");
  read.add_option("names", options.names, "Variables; * and ? stand for other characters")
      ->required()
      ->type_name("NAME");
}

void AddViewCommands(CommandAdder& adder, Options& options) {
  CLI::App& list = adder.Add(CommandKind::List, "list",
                             "List the DTM's variables and pending changes, without the device");
  list.add_option("names", options.names, "Only these; * and ? stand for other characters")
      ->type_name("NAME");
  list.add_flag("--pending", options.pendingOnly, "Only those with a change to be written");
  list.add_flag("--internal", options.internalToo, "The library's own variables as well");

  CLI::App& watch = adder.Add(CommandKind::Watch, "watch", "Show live values until Ctrl-C");
  watch.add_option("names", options.names, "Variables; * and ? stand for other characters")
      ->required()
      ->type_name("NAME");
  watch.add_option("--count", options.updates, "End after this many updates")
      ->type_name("N")
      ->check(CLI::Range(1, 1000000000));
  watch.add_option("--interval", options.intervalSeconds, "Seconds between updates (default: 1)")
      ->type_name("S")
      ->check(CLI::Range(1, 3600));

  adder.Add(CommandKind::Info, "info", "Show the DTM, the device's identity and the states");

  CLI::App& menu =
      adder.Add(CommandKind::Menu, "menu", "Show a menu or an edit display with its values");
  menu.add_option(
          "path", options.path,
          "Labels or DD names from the root menus down, also as one text with \"/\" between "
          "them; the beginning of a label will do (default: the root menus)")
      ->type_name("PATH");
}

void AddDialogueCommands(CommandAdder& adder, Options& options) {
  CLI::App& run = adder.Add(CommandKind::Run, "run", "Run a method of the DTM");
  run.add_option("method", options.path, "DD name, label, or path of menus as for menu")
      ->required()
      ->type_name("METHOD");
  run.add_option(
         "--answer", options.answers,
         "Answer to the method's next message that waits for one (repeatable): \"ok\" or an "
         "empty text to acknowledge, a value as write takes it, an option's text or number; "
         "\"cancel\" cancels")
      ->type_name("ANSWER")
      ->allow_extra_args(false);
  run.add_flag("--yes", options.yes, "Acknowledge what only informs, without an --answer for it");

  CLI::App& browse =
      adder.Add(CommandKind::Browse, "browse", "Work with the DTM's menus on a screen");
  browse.add_flag("--pair", options.browsePair,
                  "The --dataset beside that of the device, as in pair and compare");
}

// The program runs itself with this, to see whether a plug-in can be loaded at all.
void AddProbe(CommandAdder& adder, Options& options) {
  CLI::App& probe = adder.Add(CommandKind::ProbePlugin, "probe-plugin", "");
  probe.group("");
  probe.add_option("plugin", options.plugin)->required();
}

// For packagers: prints what the command line's descriptions make, and ends.
void AddDocuments(CLI::App& app) {
  const auto add = [&app](const char* name, std::string (*make)(const CLI::App&)) {
    CLI::App& document = *app.add_subcommand(name, "");
    document.group("");
    document.callback([&app, make] {
      std::cout << make(app);
      throw CLI::Success();
    });
  };
  add("print-man-page", ManPage);
  add("print-bash-completion", BashCompletion);
}

// The screen has the terminal to itself.
void CheckBrowse(const Options& options) {
  if (options.json) throw CLI::ValidationError("--json does not go with browse");
  CheckTraceBesideScreen(options.trace);
}

void Complete(Options& options) {
  for (fs::path& folder : options.pluginPath) folder = fs::absolute(folder);
  options.pluginPath.push_back((ProgramFolder() / ZAF_DTMS_FROM_PROGRAMS).lexically_normal());
  CompleteLink(options);
  if (options.command == CommandKind::Serve) CompleteServe(options);
  const bool needsDtm =
      options.command != CommandKind::ProbePlugin && !IsWithoutDtm(options.command);
  if (options.dtm.empty() && needsDtm) {
    throw CLI::RequiredError("--dtm");
  }
  if (OpensPair(options) && options.dataSetFile.empty()) throw CLI::RequiredError("--dataset");
  if (options.command == CommandKind::Browse) CheckBrowse(options);
}

}  // namespace

bool OpensPair(const Options& options) {
  return options.command == CommandKind::Pair || options.command == CommandKind::Compare ||
         options.browsePair;
}

std::string LinkText(const Options& options) {
  if (IsReal(options.link)) return options.givenLink->text;
  if (options.link == LinkKind::Echo) return "echo";
  return options.deviceFile.empty() ? "device" : options.deviceFile.string();
}

std::string LanguageFromEnvironment() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(name);
    if (!value || !*value) continue;
    const std::string code = std::string(value).substr(0, 2);
    const bool known =
        code != "kt" && std::find(kLanguages.begin(), kLanguages.end(), code) != kLanguages.end();
    return known ? code : "en";
  }
  return "en";
}

Options ParseCommandLine(int argc, char** argv) {
  Options options;
  options.language = LanguageFromEnvironment();
  CLI::App app("A frame application for DTMs of HART devices", "hartframe");
  app.set_version_flag("--version", "hartframe " ZAFHARTLIB_VERSION);
  app.footer(ExitCodeHelp());
  app.formatter(std::make_shared<HelpFormatter>());
  app.require_subcommand(1);
  app.fallthrough();
  AddDtmOptions(app, options);
  AddLinkOptions(app, options);
  AddDataSetOption(app, options);
  AddOutputOptions(app, options);
  AddTraceOptions(app, options.trace);
  CommandAdder adder(app, options);
  AddTransferCommands(adder, options);
  AddViewCommands(adder, options);
  AddDialogueCommands(adder, options);
  AddProbe(adder, options);
  AddDataSetCommands(adder, options);
  AddLinkCommands(adder, options);
  AddServeCommand(adder, options);
  AddDocuments(app);
  try {
    app.parse(argc, argv);
    Complete(options);
  } catch (const CLI::ParseError& error) {
    std::exit(app.exit(error) == 0 ? 0 : static_cast<int>(ExitCode::Usage));
  }
  return options;
}

}  // namespace hartframe
