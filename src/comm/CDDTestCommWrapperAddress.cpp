#include "comm/CDDTestCommWrapper.h"
#include "comm/CommandFinder.h"
#include "ddobjects/Menu.h"
#include "interfaces/InternalNames.h"
#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"
#include "types/Failure.h"

// The device's address, the connection menu and the online state.
namespace ZAFHartLib {

using ZAFHartTypes::Definition;
using ZAFHartTypes::DtmOnlineState;
using ZAFHartTypes::IgnoreFailures;
using ZAFHartTypes::Menu;
using ZAFHartTypes::MenuItem;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::OnlineMode;

namespace internal_names = ZAFHartTypes::internal_names;

void CDDTestCommWrapper::Initialize() {
  const auto self = shared_from_this();
  SetEmulate(true);
  address_.Find(model_);
  const auto menu =
      std::make_shared<Menu>(Definition::Define(communicationMenu_, ObjectKind::Menu));
  menu->SetLabel(ResText(idCommunicationMenu));
  const Definition availTime =
      Definition::Define(internal_names::kDynAvailTime, ObjectKind::Variable);
  for (const Definition& item :
       {address_.TagVariable(), address_.PollingAddressVariable(), availTime}) {
    if (item) menu->Items().Add(MenuItem(item));
  }
  model_.Database()->WriteObject(menu);
  SetEmulate(false);
}

void CDDTestCommWrapper::SetEmulate(bool emulate) {
  emulate_ = emulate;
  if (!model_.Get()) return;
  const auto kernel = model_.Kernel();
  const auto mode =
      kernel->GetVariable(Definition::Define(internal_names::kOnlineMode, ObjectKind::Variable));
  const auto state = kernel->GetVariable(
      Definition::Define(internal_names::kDTMOnlineState, ObjectKind::Variable));
  const auto database = model_.Database();
  database->WriteValue(mode->Definition(), static_cast<std::int16_t>(emulate ? OnlineMode::Offline
                                                                             : OnlineMode::Online));
  database->WriteValue(state->Definition(),
                       static_cast<std::int32_t>(emulate ? DtmOnlineState::NotConnected
                                                         : DtmOnlineState::Connected));
}

void CDDTestCommWrapper::GetAddressInformation(std::int32_t& pollingAddress, std::string& tagName,
                                               std::string& longAddress) {
  const auto self = shared_from_this();
  IgnoreFailures([this] {
    address_.ReadFromDatabase(model_);
    if (!longAddress_.empty() || emulate_) return;
    LearnLongAddress();
    if (longAddress_.empty()) ShowConnectionError(ErrorSeverity::Error);
  });
  pollingAddress = address_.PollingAddress();
  tagName = address_.Tag();
  longAddress = longAddress_;
}

void CDDTestCommWrapper::SetAddressInformation(std::int32_t pollingAddress,
                                               const std::string& tagName,
                                               const std::string& longAddress) {
  address_.Set(model_, pollingAddress, tagName);
  longAddress_ = longAddress;
}

void CDDTestCommWrapper::LearnLongAddress() {
  if (isLearning_) return;
  struct Learning {
    bool& flag;
    explicit Learning(bool& learning) : flag(learning) { flag = true; }
    ~Learning() { flag = false; }
  } const learning(isLearning_);
  address_.ReadFromKernel(model_);
  const auto kernel = model_.Kernel();
  const Definition definition = FindCommand(model_, UniversalCommand::ReadUniqueIdentifier);
  const auto command = definition ? kernel->GetSafeCommand(definition) : nullptr;
  if (command) kernel->ExecuteCommand(command->CommandCopy(), 0);
}

void CDDTestCommWrapper::ShowConnectionError(ErrorSeverity severity) {
  if (!ShowError(*model_.Gui(), severity, idErrNoConnection)) return;
  lastResult_ = static_cast<std::int32_t>(ZAFHartTypes::CommResult::NotInDD);
}

}  // namespace ZAFHartLib
