#include "hartframe/Session.h"

#include <unistd.h>

#include <cstdlib>

#include "components/LibraryClasses.h"
#include "hartframe/MessageControl.h"
#include "hartframe/PluginProbe.h"
#include "hartframe/trace/Tracing.h"
#include "interfaces/IDeviceConnection.h"
#include "interfaces/InternalNames.h"
#include "platform/Platform.h"
#include "types/NamePattern.h"
#include "workerdb/CDDWorkerDB.h"

namespace hartframe {

namespace {

using ZAFHartTypes::Definition;
using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Failure;
using ZAFHartTypes::IsPattern;
using ZAFHartTypes::MatchesPattern;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::Variant;
namespace names = ZAFHartTypes::internal_names;

// In a pair the changes are the offline side's.
std::filesystem::path PendingPath(const Options& options, bool isOffline) {
  if (!isOffline && OpensPair(options)) return {};
  if (!options.pendingFile.empty() || options.deviceFile.empty()) return options.pendingFile;
  return std::filesystem::path(options.deviceFile.string() + ".pending");
}

template <typename T>
T& Require(const std::shared_ptr<T>& component) {
  if (!component) throw Failure(ErrorNumber::ObjectNotSet, "hartframe");
  return *component;
}

}  // namespace

Session::Session(const Options& options, Console& console, Speech& speech, Report& report)
    : options_(options),
      console_(console),
      speech_(speech),
      report_(report),
      pending_(PendingPath(options, false)),
      signals_(std::make_shared<SignalWatch>()),
      isOffline_(false) {}

Session::Session(const Session& online, const Options& options)
    : options_(options),
      console_(online.console_),
      speech_(online.speech_),
      report_(online.report_),
      pending_(PendingPath(options, true)),
      signals_(online.signals_),
      isOffline_(true) {}

Session::~Session() {
  if (components_) components_->PrepareTermination();
  if (debugger_) debugger_->End();
}

void Session::Open() {
  if (!isOffline_) PrepareClasses();
  LoadDtm();
  RegisterControls();
  Connect();
  SetSessionVariables();
}

void Session::PrepareClasses() {
  auto& classes = platform::Current().Classes();
  ZAFHartLib::RegisterLibraryClasses(classes);
  if (options_.trace.IsOn()) debugger_ = StartTracing(options_, console_, *signals_);
  classes.SetPluginPath(options_.pluginPath);
  plugin_ = classes.FindPlugin(options_.dtm);
  if (!plugin_.empty()) ProbePlugin(plugin_);
}

void Session::LoadDtm() {
  components_ = ZAFHartLib::CDDComponents::Create();
  components_->SetDataModelClass(options_.dtm + ".DataModel");
  components_->SetCommWrapperClass(IsReal(options_.link) ? "ZAFHartLib.CHARTCommWrapper"
                                                         : "ZAFHartLib.CDDTestCommWrapper");
  try {
    components_->Initialize();
  } catch (const Failure& failure) {
    const std::string advice =
        plugin_.empty() ? "; name the folder of its plug-in with --dtm-path" : "";
    throw CommandFailure(ExitCode::DtmNotLoadable, failure.Description() + advice);
  }
}

void Session::RegisterControls() {
  // Tells what the attributes of a variable depend on.
  dynamic_cast<ZAFHartLib::CDDWorkerDB&>(Database()).SetTrackDependencies(true);
  ZAFHartLib::CDDDTMGUI& gui = Gui();
  gui.SetLanguageID(speech_.Language());
  errors_ = std::make_shared<ErrorWatch>();
  gui.SetErrorHandler(errors_);
  gui.SetMessageControl(std::make_shared<MessageControl>(report_, console_, speech_, *signals_));
  view_ = std::make_shared<ViewControl>(console_, speech_, *signals_);
  view_->SetComponentModel(components_);
  gui.RegisterCtrl(view_);
  if (!isOffline_) SetInterruptHandler();
}

void Session::SetInterruptHandler() {
  // An exchange that begins after the Ctrl-C is to end as well.
  signals_->SetHandler([this] { components_->CancelOperation(); }, true);
}

void Session::Connect() {
  if (isOffline_) return Comm().SetEmulate(true);
  connection_ = Connection(options_);
  const auto user = std::dynamic_pointer_cast<ZAFHartTypes::ILinkUser>(components_->HARTComm());
  Require(user).SetLink(connection_.Link());
  if (options_.command == CommandKind::List) return;
  SetAddress();
  // The DTM's defaults count as values; for those who ask the device they are not what it has.
  Database().SetVariableAvailable({}, false);
}

void Session::SetAddress() {
  const DeviceAddress& address = options_.address;
  if (const auto connection =
          std::dynamic_pointer_cast<ZAFHartTypes::IDeviceConnection>(components_->HARTComm())) {
    connection->SetAddressing(address.addressing);
  }
  Comm().SetAddressInformation(address.polling, address.tag, address.longAddress);
}

void Session::SetSessionVariables() {
  // Of "__ZAF__FDTDTMState".
  constexpr std::int32_t kRunning = 4;
  constexpr std::int32_t kOnline = 7;
  const auto set = [this](std::string_view name, const Variant& value) {
    Database().WriteValue(Definition::Define(name, ObjectKind::Variable), value);
  };
  set(names::kFDTUserLevel, static_cast<std::int16_t>(options_.userLevel));
  const char* user = std::getenv("USER");
  set("__ZAF__FDTUserName", user ? user : "");
  set("__ZAF__FDTDTMState", isOffline_ ? kRunning : kOnline);
  TakeBusyAttempts();
}

void Session::TakeBusyAttempts() {
  if (!options_.busyAttempts) return;
  Database().WriteValue(Definition::Define(names::kRetryNumber, ObjectKind::Variable),
                        *options_.busyAttempts);
}

ZAFHartTypes::IDDKernel& Session::Kernel() {
  return Require(components_->DDKernel());
}

ZAFHartTypes::IDDWorkerDB& Session::Database() {
  return Require(components_->DDWorkerDB());
}

ZAFHartTypes::IDDCommWrapper& Session::Comm() {
  return Require(components_->HARTComm());
}

ZAFHartLib::CDDDTMGUI& Session::Gui() {
  return Require(std::dynamic_pointer_cast<ZAFHartLib::CDDDTMGUI>(components_->DDGUI()));
}

void Session::SetLanguage(const std::string& language) {
  speech_.SetLanguage(language);
  Gui().SetLanguageID(language);
}

std::shared_ptr<ZAFHartTypes::Variable> Session::Variable(const Definition& definition) {
  return Kernel().GetVariable(definition);
}

VariableRow Session::Row(const Definition& definition) {
  return MakeRow(Variable(definition), speech_);
}

std::vector<Definition> Session::AllVariables(bool internalToo) {
  std::vector<Definition> definitions;
  for (const auto& object : Database().NewEnum()) {
    if (object->Kind() != ObjectKind::Variable) continue;
    const Definition& definition = object->ObjectDefinition();
    if (internalToo || !definition.Name().starts_with(names::kPrefix))
      definitions.push_back(definition);
  }
  return definitions;
}

Definition Session::Find(const std::string& name) {
  const auto object = Database().ReadObject(Definition::Define(name, ObjectKind::Variable));
  if (!object || object->Kind() != ObjectKind::Variable) {
    throw CommandFailure(ExitCode::Usage, speech_(Text::UnknownName, {OneLine(name)}));
  }
  return object->ObjectDefinition();
}

std::vector<Definition> Session::FindAll(const std::vector<std::string>& patterns,
                                         bool internalToo) {
  const std::vector<Definition> all = AllVariables(true);
  std::vector<bool> chosen(all.size());
  for (const std::string& pattern : patterns) {
    bool matched = false;
    for (std::size_t i = 0; i < all.size(); ++i) {
      const bool isInternal = all[i].Name().starts_with(names::kPrefix);
      if (isInternal && !internalToo && IsPattern(pattern)) continue;
      if (!MatchesPattern(all[i].Name(), pattern)) continue;
      matched = chosen[i] = true;
    }
    if (matched) continue;
    const Text text = IsPattern(pattern) ? Text::NoMatch : Text::UnknownName;
    throw CommandFailure(ExitCode::Usage, speech_(text, {OneLine(pattern)}));
  }
  std::vector<Definition> definitions;
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (chosen[i]) definitions.push_back(all[i]);
  }
  return definitions;
}

bool Session::Run(const std::function<void()>& operation,
                  const std::function<void()>& onInterrupt) {
  signals_->SetHandler(onInterrupt);
  const std::shared_ptr<void> restored(nullptr, [this](void*) { SetInterruptHandler(); });
  return Run(operation);
}

std::shared_ptr<HartLinkSim::EmulatedDevice> Session::Device() const {
  return connection_.Device();
}

ExitCode Session::TellFileErrors() {
  const std::set<std::string> errors = connection_.FileErrors();
  for (const std::string& error : errors) report_.Problem(NameOf(ExitCode::FileBroken), error);
  return errors.empty() ? ExitCode::Ok : ExitCode::FileBroken;
}

std::string Session::ConnectionProblem() {
  const auto connection =
      std::dynamic_pointer_cast<ZAFHartTypes::IDeviceConnection>(components_->HARTComm());
  return connection ? speech_.Pick(connection->ConnectionError()) : "";
}

ExitCode Session::TellConnection() {
  const std::string problem = ConnectionProblem();
  if (problem.empty()) return ExitCode::Ok;
  const auto& connection = dynamic_cast<ZAFHartTypes::IDeviceConnection&>(Comm());
  const bool isWrong = connection.OnlineState() == ZAFHartTypes::DtmOnlineState::WrongDevice;
  const ExitCode code = isWrong ? ExitCode::WrongDevice : ExitCode::Communication;
  report_.Problem(isWrong ? NameOf(code) : "noDevice", problem);
  return code;
}

bool Session::Run(const std::function<void()>& operation) {
  try {
    signals_->Check();
    if (!Interrupted()) operation();
  } catch (const Failure& failure) {
    const bool isKnown =
        failure.Number() == ErrorNumber::Cancelled || failure.Number() == ErrorNumber::NotConnected;
    if (!isKnown) throw;
  }
  return !Interrupted();
}

}  // namespace hartframe
