#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "interfaces/Codes.h"

namespace hartframe {

enum class CommandKind {
  Upload,
  Download,
  Write,
  Read,
  List,
  Watch,
  Info,
  Menu,
  Run,
  Browse,
  Save,
  Pair,
  Compare,
  ProbePlugin
};
enum class LinkKind { Echo, Device };

// What the command line asks for.
struct Options {
  CommandKind command = CommandKind::Info;

  std::string dtm;                                // project of the DTM's classes
  std::vector<std::filesystem::path> pluginPath;  // absolute
  std::filesystem::path deviceFile;               // empty: none
  LinkKind link = LinkKind::Echo;
  std::filesystem::path dataSetFile;  // that the run works on; empty: none
  std::vector<std::string> faults;
  int latencyMilliseconds = 0;
  int pollingAddress = 0;  // of the device

  std::string language = "en";
  bool json = false;
  ZAFHartTypes::UserLevel userLevel = ZAFHartTypes::UserLevel::PlanningEngineer;
  bool discard = false;
  std::filesystem::path saveFile;  // of save
  bool uploadPair = false;         // pair: from the device to the data set
  bool downloadPair = false;       // pair: from the data set to the device
  bool differencesOnly = false;    // of compare
  bool browsePair = false;         // browse: the data set beside that of the device
  bool noUpload = false;           // save: what the data set holds as it is

  std::optional<int> trace;  // highest level of trace lines; nothing: no tracing
  int traceDepth = 0;        // highest stack level; 0: the same as `trace`
  int traceDetail = 1;       // level of object descriptions

  std::vector<std::string> names;    // variables; read, list and watch take * and ?
  std::vector<std::string> changes;  // NAME=VALUE
  bool pendingOnly = false;
  bool internalToo = false;
  std::vector<std::string> path;     // of menu and run: labels or DD names from the root menus down
  std::vector<std::string> answers;  // of run, in order
  bool yes = false;                  // run: what only informs needs no answer
  int updates = 0;                   // of watch; 0: until Ctrl-C
  int intervalSeconds = 1;           // of watch

  std::filesystem::path plugin;  // to probe
};

// The run opens the data set on disk as the offline side of a pair.
bool OpensPair(const Options& options);

// Reads the command line. Ends the process itself for --help and --version (code 0) and for wrong
// arguments (ExitCode::Usage, with the reason on standard error).
Options ParseCommandLine(int argc, char** argv);

// "en", "de", "fr", "it" or "es", as the environment (LC_ALL, LC_MESSAGES, LANG) says.
std::string LanguageFromEnvironment();

}  // namespace hartframe
