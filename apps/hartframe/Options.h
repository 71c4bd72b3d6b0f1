#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "hartframe/link/DeviceAddress.h"
#include "hartframe/link/LinkName.h"
#include "hartframe/serve/ServeOptions.h"
#include "hartframe/trace/TraceOptions.h"
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
  Scan,
  Raw,
  Serve,
  ProbePlugin
};

// The command talks to devices, or to none, without a DTM.
constexpr bool IsWithoutDtm(CommandKind command) {
  return command == CommandKind::Scan || command == CommandKind::Raw;
}

// What the command line asks for.
struct Options {
  CommandKind command = CommandKind::Info;

  std::string dtm;                                // project of the DTM's classes
  std::vector<std::filesystem::path> pluginPath;  // absolute
  std::filesystem::path deviceFile;               // empty: none
  LinkKind link = LinkKind::Echo;
  std::optional<LinkName> givenLink;  // --link; of a real one with its settings
  std::filesystem::path dataSetFile;  // that the run works on; empty: none
  std::vector<std::string> faults;
  int latencyMilliseconds = 0;
  DeviceAddress address;
  std::optional<int> retries;         // of a real link; nothing: its default
  std::optional<int> busyAttempts;    // nothing: a busy device is not asked again
  std::filesystem::path pcapFile;     // empty: none
  std::filesystem::path pendingFile;  // empty: beside the device file
  int firstAddress = 0;               // of scan
  int lastAddress = 63;
  int rawCommand = 0;  // of raw
  std::vector<std::uint8_t> rawData;

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

  TraceOptions trace;

  std::vector<std::string> names;    // variables; read, list and watch take * and ?
  std::vector<std::string> changes;  // NAME=VALUE
  bool pendingOnly = false;
  bool internalToo = false;
  std::vector<std::string> path;     // of menu and run: labels or DD names from the root menus down
  std::vector<std::string> answers;  // of run, in order
  bool yes = false;                  // run: what only informs needs no answer
  int updates = 0;                   // of watch; 0: until Ctrl-C
  int intervalSeconds = 1;           // of watch

  ServeOptions serve;

  std::filesystem::path plugin;  // to probe
};

// The run opens the data set on disk as the offline side of a pair.
bool OpensPair(const Options& options);

// The link, as users know it: "echo", the device file, or what --link names.
std::string LinkText(const Options& options);

// Reads the command line. Ends the process itself for --help and --version (code 0) and for wrong
// arguments (ExitCode::Usage, with the reason on standard error).
Options ParseCommandLine(int argc, char** argv);

// "en", "de", "fr", "it" or "es", as the environment (LC_ALL, LC_MESSAGES, LANG) says.
std::string LanguageFromEnvironment();

}  // namespace hartframe
