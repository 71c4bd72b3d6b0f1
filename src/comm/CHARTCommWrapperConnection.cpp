#include <algorithm>

#include "comm/CHARTCommWrapper.h"
#include "comm/ConnectionTexts.h"
#include "interfaces/InternalNames.h"
#include "platform/ForeignCall.h"
#include "platform/Platform.h"
#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"
#include "types/Failure.h"

// The connection: looking for the device, judging who answers, and the online state.
namespace ZAFHartLib {

namespace internal_names = ZAFHartTypes::internal_names;
using ZAFHartTypes::Definition;
using ZAFHartTypes::Failure;
using ZAFHartTypes::IgnoreFailures;
using ZAFHartTypes::ISupportedDevices;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::OnlineMode;
using ZAFHartTypes::SupportedDevice;

namespace {

constexpr std::int32_t kDefaultReconnectRetries = 2;
constexpr std::int32_t kMostReconnectRetries = 100;

platform::TickCount Now() {
  return platform::Current().GetClock().Ticks();
}

OnlineMode ConnectedMode(const ZAFHartTypes::ModelReference& model) {
  const auto data = std::dynamic_pointer_cast<ZAFHartTypes::IDataBaseExtension>(model.Database());
  return data && data->SynchronousMode() ? OnlineMode::OnlineSynchronous : OnlineMode::Online;
}

}  // namespace

bool CHARTCommWrapper::Connect() {
  const auto self = shared_from_this();
  if (Emulate()) return false;
  connectsByItself_ = true;
  shownFor_.reset();
  if (IsConnected() || ConnectNow()) return true;
  ShowProblem();
  return false;
}

void CHARTCommWrapper::Disconnect() {
  const auto self = shared_from_this();
  connectsByItself_ = false;
  problem_ = ResText(idErrDisconnected);
  shownFor_.reset();
  EndConnection();
}

bool CHARTCommWrapper::AcceptDevice() {
  if (state_ != State::WrongDevice || !WrongTypeText().empty()) return false;
  TakeDevice();
  return true;
}

void CHARTCommWrapper::LearnLongAddress() {
  if (!EnsureConnected()) ShowProblem();
}

void CHARTCommWrapper::ApplyEmulate(bool) {
  EndConnection();
  problem_.clear();
  StoreOnlineState(OnlineMode::Offline, State::NotConnected);
}

bool CHARTCommWrapper::EnsureConnected() {
  return IsConnected() || (MayConnect() && ConnectNow());
}

bool CHARTCommWrapper::MayConnect() const {
  if (!connectsByItself_ || state_ == State::WrongDevice) return false;
  return !failedAt_ || Now() - *failedAt_ >= kSearchPause;
}

DeviceSearch CHARTCommWrapper::NewSearch() const {
  const std::int32_t retries = unit_.empty() ? 0
                                             : InternalNumber(internal_names::kReconnectRetryNumber,
                                                              kDefaultReconnectRetries);
  return {target_, unit_.empty() ? "" : LongAddress(),
          1 + std::clamp(retries, 0, kMostReconnectRetries)};
}

bool CHARTCommWrapper::ConnectNow() {
  DeviceSearch search = NewSearch();
  StopBackgroundSearch();
  SetState(State::Connecting);
  ++waitingSearches_;
  try {
    while (const auto probe = search.Next()) {
      ExecuteAndWait(probe, nullptr);
      search.Take(*probe);
    }
  } catch (const Failure&) {
    --waitingSearches_;
    SetState(State::NotConnected);
    ReleaseQueue();
    throw;
  }
  --waitingSearches_;
  Conclude(search);
  ReleaseQueue();
  return IsConnected();
}

void CHARTCommWrapper::StartSearch() {
  if (!IgnoreFailures([this] { search_ = NewSearch(); })) return ReleaseQueue();
  SetState(State::Connecting);
  SendProbe();
}

// The end of each probe comes with a tick of the asynchroniser.
void CHARTCommWrapper::SendProbe() {
  probe_ = search_->Next();
  if (!probe_) return EndBackgroundSearch();
  probe_->SetCallback(weak_from_this());
  if (!IgnoreFailures([this] { CommWrapper::StartInBackground(probe_); })) EndBackgroundSearch();
}

void CHARTCommWrapper::EndBackgroundSearch() {
  if (!search_) return;
  const DeviceSearch search = *search_;
  search_.reset();
  probe_.reset();
  Conclude(search);
  ReleaseQueue();
  // Nobody is in a hurry to hear that a device does not answer in the background.
  if (state_ == State::WrongDevice) ShowProblem();
}

void CHARTCommWrapper::StopBackgroundSearch() {
  if (probe_) DropBackground(probe_);
  probe_.reset();
  search_.reset();
}

void CHARTCommWrapper::Conclude(const DeviceSearch& search) {
  device_ = search.Found();
  if (!device_)
    return Fail(State::NoDeviceFound, NotFoundText(search, target_.Text(), LinkError()));
  SetState(State::CheckingDeviceType);
  const std::string wrongType = WrongTypeText();
  if (!wrongType.empty()) return Fail(State::WrongDevice, wrongType);
  if (!LongAddress().empty() && device_->LongAddress() != LongAddress()) {
    return Fail(State::WrongDevice,
                OtherDeviceText(unit_.empty() ? LongAddress() : unit_, *device_));
  }
  TakeDevice();
}

std::string CHARTCommWrapper::WrongTypeText() const {
  std::vector<SupportedDevice> supported;
  const auto information =
      std::dynamic_pointer_cast<ISupportedDevices>(Model().Model()->KernelInformation());
  if (information) {
    supported = platform::CallForeign("ISupportedDevices.SupportedDevices",
                                      [&] { return information->SupportedDevices(); });
  }
  return WrongDeviceText(supported, *device_);
}

void CHARTCommWrapper::TakeDevice() {
  unit_ = device_->Text();
  SetLongAddress(device_->LongAddress());
  problem_.clear();
  shownFor_.reset();
  failedAt_.reset();
  SetState(State::Connected);
}

void CHARTCommWrapper::Fail(State state, std::string problem) {
  problem_ = std::move(problem);
  failedAt_ = Now();
  SetState(state);
}

// The next command looks for the device again.
void CHARTCommWrapper::LoseConnection() {
  if (!IsConnected()) return;
  Fail(State::NoDeviceFound, NoDeviceText(target_.Text(), LinkError()));
  failedAt_.reset();
}

void CHARTCommWrapper::EndConnection() {
  failedAt_.reset();
  if (state_ == State::NotConnected) return;
  SetState(State::PreparingDisconnect);
  StopBackgroundSearch();
  CancelExchange();
  CancelBackground();
  SetState(State::Disconnecting);
  ReleaseOwnLink();
  SetState(State::NotConnected);
  ReleaseQueue();
}

void CHARTCommWrapper::ShowProblem() {
  if (problem_.empty() || shownFor_ == state_) return;
  shownFor_ = state_;
  ShowError(*Model().Gui(), ErrorSeverity::Critical, problem_);
}

std::string CHARTCommWrapper::LinkError() {
  std::string error;
  IgnoreFailures([&] {
    const auto status = std::dynamic_pointer_cast<ZAFHartTypes::ILinkStatus>(Link());
    if (status) error = status->LastError();
  });
  return error;
}

void CHARTCommWrapper::SetState(State state) {
  if (state_ == state) return;
  state_ = state;
  if (!Model().Get()) return;
  StoreOnlineState(state == State::Connected ? ConnectedMode(Model()) : OnlineMode::Offline, state);
  for (const auto name : {internal_names::kOnlineMode, internal_names::kDTMOnlineState}) {
    Model().Gui()->ShowObject(
        Model().Database()->ReadObject(Definition::Define(name, ObjectKind::Variable)));
  }
}

}  // namespace ZAFHartLib
