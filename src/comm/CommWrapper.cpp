#include "comm/CommWrapper.h"

#include <algorithm>

#include "comm/ReplyDecoding.h"
#include "ddobjects/Transaction.h"
#include "ddobjects/Variable.h"
#include "gui/CLockObject.h"
#include "gui/clsEventDispatcher.h"
#include "hart/StatusBytes.h"
#include "interfaces/InternalNames.h"
#include "platform/Platform.h"
#include "types/Failure.h"

// Life cycle, links and the synchronous execution of a command.
namespace ZAFHartLib {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::DataItem;
using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::ExchangeResult;
using ZAFHartTypes::ExchangeState;
using ZAFHartTypes::Failure;
using ZAFHartTypes::IgnoreFailures;
using ZAFHartTypes::LifeSignalCode;
using ZAFHartTypes::SignalObject;

namespace {

constexpr platform::Milliseconds kWaitStep{20};

}  // namespace

// A synchronous exchange under way: it can be cancelled, and is when the wait for it fails.
class CommWrapper::Waiting {
 public:
  Waiting(std::vector<UnderWay>& list, UnderWay waiting) : list_(list), waiting_(waiting) {
    list_.push_back(std::move(waiting));
  }
  ~Waiting() {
    list_.pop_back();
    End(waiting_);
  }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;

  // Ends an exchange as Cancelled; false when it has ended already.
  static bool End(const UnderWay& underWay) {
    if (!IsUnderWay(underWay.exchange->State())) return false;
    IgnoreFailures([&] { underWay.link->Cancel(underWay.exchange); });
    underWay.exchange->Finish(ExchangeState::Cancelled, ExchangeResult::None);
    return true;
  }

 private:
  std::vector<UnderWay>& list_;
  UnderWay waiting_;
};

CommWrapper::CommWrapper(std::string linkClass)
    : replyBytes_(hart::kStatusSize),
      communicationMenu_(ZAFHartTypes::internal_names::kConnectionMenu),
      linkClass_(std::move(linkClass)) {
  IgnoreFailures([this] { asynchronizer_.Show(); });
}

CommWrapper::~CommWrapper() {
  EndBackground();
}

void CommWrapper::SetComponentModel(const std::shared_ptr<IDDComponents>& components) {
  model_.Set(components);
  if (components) {
    asynchronizer_.SetCommWrapper(weak_from_this());
  } else {
    asynchronizer_.SetCommWrapper({});
    EndBackground();
  }
}

std::vector<std::uint8_t> CommWrapper::LastData() const {
  const std::size_t status = std::min(replyBytes_.size(), hart::kStatusSize);
  return {replyBytes_.begin() + static_cast<std::ptrdiff_t>(status), replyBytes_.end()};
}

void CommWrapper::SetLinkClass(const std::string& className) {
  linkClass_ = className;
  ownLink_.reset();
}

void CommWrapper::SetLink(std::shared_ptr<ILink> link) {
  hostLink_ = std::move(link);
}

std::shared_ptr<ILink> CommWrapper::Link() {
  if (hostLink_) return hostLink_;
  if (!ownLink_) ownLink_ = platform::Current().Classes().CreateAs<ILink>(linkClass_);
  return ownLink_;
}

bool CommWrapper::CancelExchange() {
  bool cancelled = false;
  const std::vector<UnderWay> waiting = waiting_;
  for (const UnderWay& underWay : waiting) cancelled = Waiting::End(underWay) || cancelled;
  return cancelled;
}

void CommWrapper::CancelBackground() {
  const std::vector<UnderWay> background = background_;
  for (const UnderWay& underWay : background) Waiting::End(underWay);
}

bool CommWrapper::ExecuteCommand(std::int16_t number,
                                 const std::shared_ptr<Transaction>& transaction) {
  const auto self = shared_from_this();
  if (!transaction) {
    throw Failure(ErrorNumber::InvalidArgument, Source("ExecuteCommand"),
                  "Command " + std::to_string(number) + " comes without a transaction.");
  }
  if (CompletesLocally()) return CompleteLocally(number, *transaction);
  const auto exchange = BuildExchange(number, transaction);
  if (Reach(*exchange))
    ExecuteAndWait(exchange, transaction);
  else
    TellEnd(*exchange);
  lastCommandNumber_ = number;
  return ProcessReply(number, *exchange, *transaction);
}

// The values of the worker database stand as those of the device.
bool CommWrapper::CompleteLocally(std::int16_t number, Transaction& transaction) {
  lastCommandNumber_ = number;
  lastResult_ = 0;
  status_ = {};
  replyBytes_.assign(hart::kStatusSize, 0);
  SetErrors(transaction.Reply(), 0, "");
  for (DataItem& item : transaction.Reply()) {
    if (item.IsVariable() && item.Variable()) item.Variable()->SetAvailable(true);
  }
  // An error that a real exchange left in the status items is not one of this command.
  if (hadErrors_) SetStatusItems(transaction.Reply(), {});
  return false;
}

void CommWrapper::Send(const UnderWay& underWay) {
  if (const auto observer = observer_.lock()) observer->ExchangeStarts(*underWay.exchange);
  underWay.link->Execute(underWay.exchange);
}

void CommWrapper::TellEnd(const Exchange& exchange) const {
  if (const auto observer = observer_.lock()) observer->ExchangeEnds(exchange);
}

void CommWrapper::ExecuteAndWait(const std::shared_ptr<Exchange>& exchange,
                                 const std::shared_ptr<Transaction>& transaction) {
  const UnderWay underWay{exchange, Link()};
  const Waiting waiting(waiting_, underWay);
  Send(underWay);
  CLockObject lock;
  lock.SetLock(model_.Gui());
  clsEventDispatcher dispatcher;
  dispatcher.DoInitialize();
  const SignalObject signal = transaction ? SignalObject(transaction) : SignalObject();
  while (IsUnderWay(exchange->State())) {
    dispatcher.WaitStep(kWaitStep);
    model_.Gui()->LifeSignal(LifeSignalCode::Waiting, signal);
  }
  TellEnd(*exchange);
  if (exchange->State() == ExchangeState::Cancelled) {
    throw Failure(ErrorNumber::Cancelled, Source("ExecuteCommand"));
  }
  model_.Model();
}

}  // namespace ZAFHartLib
