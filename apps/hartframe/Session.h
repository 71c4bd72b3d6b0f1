#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "components/CDDComponents.h"
#include "gui/CDDDTMGUI.h"
#include "hartframe/Connection.h"
#include "hartframe/Console.h"
#include "hartframe/ErrorWatch.h"
#include "hartframe/Options.h"
#include "hartframe/SignalWatch.h"
#include "hartframe/Speech.h"
#include "hartframe/ViewControl.h"
#include "hartframe/changes/PendingFile.h"
#include "hartframe/report/Report.h"

namespace ZAFHartDebugger {
class Debugger;
}

namespace hartframe {

class KeptDataSet;

// One DTM instance with what a frame gives it: a link to the device, controls, the language, the
// user's rights. Ends the instance with its scope.
class Session {
 public:
  Session(const Options& options, Console& console, Speech& speech, Report& report);
  // The offline data set beside `online`, which outlives it: an instance of the same DTM without a
  // device, with the defaults as values. It has the changes that the device's file keeps.
  Session(const Session& online, const Options& options);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // Loads the DTM and connects it. Raises CommandFailure: DtmNotLoadable, FileBroken, or Usage for
  // a fault that is none.
  void Open();

  const Options& Settings() const { return options_; }
  // The offline side of a pair.
  bool IsOffline() const { return isOffline_; }
  const Speech& Say() const { return speech_; }
  Report& Tell() { return report_; }
  Console& Terminal() { return console_; }
  ErrorWatch& Errors() { return *errors_; }
  ViewControl& View() { return *view_; }
  const PendingFile& Pending() const { return pending_; }
  // The data set on disk that the session works on; nullptr without --dataset.
  KeptDataSet* Kept() const { return kept_.get(); }
  void SetKept(std::shared_ptr<KeptDataSet> kept) { kept_ = std::move(kept); }
  const std::filesystem::path& PluginFile() const { return plugin_; }

  ZAFHartLib::CDDComponents& Components() { return *components_; }
  // The emulated device behind the link; nothing for other links.
  std::shared_ptr<HartLinkSim::EmulatedDevice> Device() const;
  // Each raises ObjectNotSet when the instance has been torn down.
  ZAFHartTypes::IDDKernel& Kernel();
  ZAFHartTypes::IDDWorkerDB& Database();
  ZAFHartTypes::IDDCommWrapper& Comm();
  ZAFHartLib::CDDDTMGUI& Gui();

  // The variable with current attributes, not read from the device.
  std::shared_ptr<ZAFHartTypes::Variable> Variable(const ZAFHartTypes::Definition& definition);
  VariableRow Row(const ZAFHartTypes::Definition& definition);
  // Variables in database order; the library's own when they are asked for.
  std::vector<ZAFHartTypes::Definition> AllVariables(bool internalToo);
  // The variable of that name in any letter case; CommandFailure (Usage) when there is none.
  ZAFHartTypes::Definition Find(const std::string& name);
  // Those whose names match one of the patterns (* and ?), in database order. CommandFailure
  // (Usage) for a pattern that matches none.
  std::vector<ZAFHartTypes::Definition> FindAll(const std::vector<std::string>& patterns,
                                                bool internalToo);

  // Runs an operation that Ctrl-C ends; false when it did. One that ends for want of a connection
  // to a real device has done what it could: see ConnectionProblem.
  bool Run(const std::function<void()>& operation);
  // The same, with something else to be done about Ctrl-C.
  bool Run(const std::function<void()>& operation, const std::function<void()>& onInterrupt);
  bool Interrupted() const { return signals_->Interrupted(); }
  SignalWatch& Signals() { return *signals_; }
  // Speaks another language from now on: "en", "de", "fr", "it", "es" or "kt".
  void SetLanguage(const std::string& language);
  // What --busy says counts, whatever a restored data set has.
  void TakeBusyAttempts();
  // Tells what the emulated device could not do with its file, and the like.
  ExitCode TellFileErrors();
  // Why there is no connection to a real device, in the user's language; "" when there is one, or
  // nothing has been asked.
  std::string ConnectionProblem();
  // Tells that at the end of the run.
  ExitCode TellConnection();

 private:
  void PrepareClasses();
  void LoadDtm();
  void Connect();
  void SetAddress();
  void RegisterControls();
  void SetSessionVariables();
  void SetInterruptHandler();

  const Options& options_;
  Console& console_;
  Speech& speech_;
  Report& report_;
  PendingFile pending_;
  std::shared_ptr<SignalWatch> signals_;  // shared by both sides of a pair
  const bool isOffline_;
  std::filesystem::path plugin_;
  Connection connection_;
  std::shared_ptr<ErrorWatch> errors_;
  std::shared_ptr<ViewControl> view_;
  std::shared_ptr<ZAFHartLib::CDDComponents> components_;
  std::shared_ptr<KeptDataSet> kept_;
  std::shared_ptr<ZAFHartDebugger::Debugger> debugger_;  // nothing without a trace
};

}  // namespace hartframe
