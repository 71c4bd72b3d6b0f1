#include "comm/CommWrapper.h"
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

void CommWrapper::Initialize() {
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

void CommWrapper::SetEmulate(bool emulate) {
  emulate_ = emulate;
  if (model_.Get()) ApplyEmulate(emulate);
}

void CommWrapper::StoreOnlineState(OnlineMode mode, DtmOnlineState state) {
  const auto kernel = model_.Kernel();
  const auto modeVariable =
      kernel->GetVariable(Definition::Define(internal_names::kOnlineMode, ObjectKind::Variable));
  const auto stateVariable = kernel->GetVariable(
      Definition::Define(internal_names::kDTMOnlineState, ObjectKind::Variable));
  const auto database = model_.Database();
  database->WriteValue(modeVariable->Definition(), static_cast<std::int16_t>(mode));
  database->WriteValue(stateVariable->Definition(), static_cast<std::int32_t>(state));
}

void CommWrapper::GetAddressInformation(std::int32_t& pollingAddress, std::string& tagName,
                                        std::string& longAddress) {
  const auto self = shared_from_this();
  IgnoreFailures([this] {
    address_.ReadFromDatabase(model_);
    if (!emulate_) LearnLongAddress();
  });
  pollingAddress = address_.PollingAddress();
  tagName = address_.Tag();
  longAddress = longAddress_;
}

void CommWrapper::SetAddressInformation(std::int32_t pollingAddress, const std::string& tagName,
                                        const std::string& longAddress) {
  address_.Set(model_, pollingAddress, tagName);
  longAddress_ = longAddress;
}

void CommWrapper::ShowConnectionError(ErrorSeverity severity) {
  if (!ShowError(*model_.Gui(), severity, idErrNoConnection)) return;
  lastResult_ = static_cast<std::int32_t>(ZAFHartTypes::CommResult::NotInDD);
}

}  // namespace ZAFHartLib
