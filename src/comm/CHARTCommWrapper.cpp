#include "comm/CHARTCommWrapper.h"

#include <algorithm>

#include "comm/CommandFinder.h"
#include "comm/ReplyDecoding.h"
#include "comm/ReplyStatus.h"
#include "ddobjects/Transaction.h"
#include "ddobjects/Variable.h"
#include "hart/HexText.h"
#include "hart/LinkFrame.h"
#include "hart/StatusBytes.h"
#include "interfaces/InternalNames.h"
#include "text/LangText.h"
#include "types/Failure.h"

// Commands, and what becomes of those that cannot be sent.
namespace ZAFHartLib {

namespace hart = ZAFHartTypes::hart;
namespace internal_names = ZAFHartTypes::internal_names;
using ZAFHartTypes::DataItem;
using ZAFHartTypes::Definition;
using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::ExchangeResult;
using ZAFHartTypes::ExchangeState;
using ZAFHartTypes::Failure;
using ZAFHartTypes::IgnoreFailures;
using ZAFHartTypes::ObjectKind;

namespace {

constexpr auto kWritePollingAddress =
    static_cast<std::int16_t>(UniversalCommand::WritePollingAddress);
constexpr std::int32_t kDefaultBusyAttempts = 5;
constexpr std::size_t kUniqueAddressSize = 5;

// The request would write a value of which the data set knows that the device has another.
bool HoldsChange(const Transaction& transaction) {
  return std::ranges::any_of(transaction.Request(), [](const DataItem& item) {
    return item.CarriesValue() && !item.IsIndex() && item.Variable() &&
           item.Variable()->ToBeWritten();
  });
}

// The address as devices tell it. One made of expanded type and device id, or read off a frame, has
// two bits more.
std::string CheckedLongAddress(const std::string& text) {
  if (text.empty()) return text;
  std::vector<std::uint8_t> bytes;
  if (IgnoreFailures([&] { bytes = hart::FromHex(text); }) && bytes.size() == kUniqueAddressSize) {
    const std::span<const std::uint8_t, kUniqueAddressSize> address(bytes);
    return hart::ToHex(hart::LinkAddress::Unique(address).bytes);
  }
  throw Failure(ErrorNumber::InvalidArgument, "CHARTCommWrapper.SetAddressInformation",
                "\"" + text + "\" is no long address. One has ten hexadecimal digits.");
}

}  // namespace

CHARTCommWrapper::CHARTCommWrapper() : CommWrapper("HartModem.Link") {}

void CHARTCommWrapper::SetComponentModel(const std::shared_ptr<IDDComponents>& components) {
  if (!components) {
    StopBackgroundSearch();
    queue_.clear();
  }
  CommWrapper::SetComponentModel(components);
}

void CHARTCommWrapper::Initialize() {
  CommWrapper::Initialize();
  target_.pollingAddress = Address().PollingAddress();
  target_.tag = Address().Tag();
}

void CHARTCommWrapper::SetAddressInformation(std::int32_t pollingAddress,
                                             const std::string& tagName,
                                             const std::string& longAddress) {
  target_.longAddress = CheckedLongAddress(longAddress);
  target_.pollingAddress = pollingAddress;
  target_.tag = tagName;
  EndConnection();
  device_.reset();
  unit_.clear();
  problem_.clear();
  shownFor_.reset();
  CommWrapper::SetAddressInformation(pollingAddress, tagName, target_.longAddress);
}

void CHARTCommWrapper::SetLinkClass(const std::string& className) {
  EndConnection();
  CommWrapper::SetLinkClass(className);
}

void CHARTCommWrapper::SetLink(std::shared_ptr<ILink> link) {
  EndConnection();
  CommWrapper::SetLink(std::move(link));
}

bool CHARTCommWrapper::Reach(Exchange& exchange) {
  if (EnsureConnected()) {
    SetDeviceAddress(exchange);
    return true;
  }
  ShowProblem();
  exchange.Finish(ExchangeState::NotSent, ExchangeResult::None);
  return false;
}

void CHARTCommWrapper::SetDeviceAddress(Exchange& exchange) {
  exchange.SetPollAddress(static_cast<std::int16_t>(target_.pollingAddress));
  exchange.SetTag(target_.tag);
  exchange.SetLongAddress(LongAddress());
  PassBusyAttempts();
}

void CHARTCommWrapper::PassBusyAttempts() {
  const auto link = std::dynamic_pointer_cast<ZAFHartTypes::IBusyRetrying>(Link());
  if (!link || !link->RetriesBusy()) return;
  link->SetBusyAttempts(
      std::max(1, InternalNumber(internal_names::kRetryNumber, kDefaultBusyAttempts)));
}

// The device is found under its new polling address from now on.
void CHARTCommWrapper::TakeReplyOf(Exchange& exchange, const HartLinkSim::Frame&) {
  if (exchange.CommandNumber() != kWritePollingAddress || LastStatus().communication != 0 ||
      !hart::IsCarriedOut(LastStatus().responseCode)) {
    return;
  }
  const std::vector<std::uint8_t> request = hart::FromHex(exchange.RequestData());
  if (!request.empty()) target_.pollingAddress = request.front();
}

void CHARTCommWrapper::TakeNoReply(Exchange& exchange, Transaction& transaction) {
  CommWrapper::TakeNoReply(exchange, transaction);
  if (exchange.State() == ExchangeState::NoReply) LoseConnection();
  if (exchange.State() != ExchangeState::NotSent) return;
  if (HoldsChange(transaction)) RefuseWrite();
  SetErrors(transaction.Reply(), kReplyErrorBase + kNoReplyStatus.communication, problem_);
}

void CHARTCommWrapper::RefuseWrite() const {
  throw Failure(ErrorNumber::NotConnected, Source("ExecuteCommand"),
                LangText(problem_, Model().Gui()->LanguageID()));
}

void CHARTCommWrapper::StartInBackground(const std::shared_ptr<Exchange>& exchange) {
  if (IsConnected()) {
    SetDeviceAddress(*exchange);
    CommWrapper::StartInBackground(exchange);
  } else if (search_ || waitingSearches_ > 0) {
    queue_.push_back(exchange);
  } else if (MayConnect()) {
    queue_.push_back(exchange);
    StartSearch();
  } else {
    exchange->Finish(ExchangeState::NotSent, ExchangeResult::None);
  }
}

void CHARTCommWrapper::ReleaseQueue() {
  for (const auto& exchange : std::exchange(queue_, {})) {
    const bool isStarted = IsConnected() && IgnoreFailures([&] { StartInBackground(exchange); });
    if (isStarted) continue;
    exchange->SetCallback(weak_from_this());
    exchange->Finish(ExchangeState::NotSent, ExchangeResult::None);
  }
}

void CHARTCommWrapper::CompleteExchange(const std::shared_ptr<Exchange>& exchange) {
  if (!probe_ || exchange != probe_) return CommWrapper::CompleteExchange(exchange);
  const auto self = shared_from_this();
  DropBackground(exchange);
  search_->Take(*exchange);
  SendProbe();
}

std::int32_t CHARTCommWrapper::InternalNumber(std::string_view name, std::int32_t otherwise) const {
  std::int32_t number = otherwise;
  IgnoreFailures([&] {
    const auto object =
        Model().Database()->ReadObject(Definition::Define(name, ObjectKind::Variable));
    const auto variable = object ? object->MakeVariable() : nullptr;
    if (variable) number = variable->Value().ToLong();
  });
  return number;
}

}  // namespace ZAFHartLib
