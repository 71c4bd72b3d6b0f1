#include <algorithm>

#include "comm/CommWrapper.h"
#include "ddobjects/Command.h"
#include "types/Failure.h"

// Asynchronous execution of a command.
namespace ZAFHartLib {

using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::ExchangeResult;
using ZAFHartTypes::Failure;
using ZAFHartTypes::IgnoreFailures;
using ZAFHartTypes::LifeSignalCode;

namespace {

void RequireCommand(const std::shared_ptr<CommandRef>& reference, const std::string& source) {
  if (reference && reference->Command()) return;
  throw Failure(ErrorNumber::InvalidArgument, source, "The execution comes without a command.");
}

void TraceFailure(ZAFHartTypes::IDDDTMGUI& gui, const char* className, const Failure& failure) {
  IgnoreFailures([&] {
    const auto tracer = gui.TraceObject();
    constexpr std::int32_t kEveryFilter = -1;
    if (!tracer) return;
    tracer->TraceText(kEveryFilter, std::string(className) + ": asynchronous completion failed: " +
                                        failure.Source() + ": " + failure.Description());
  });
}

}  // namespace

bool CommWrapper::AsyncExecuteCommand(const std::shared_ptr<CommandRef>& reference) {
  const auto self = shared_from_this();
  RequireCommand(reference, Source("AsyncExecuteCommand"));
  if (CompletesLocally()) {
    const auto exchange = std::make_shared<Exchange>();
    exchange->SetUserData(reference);
    exchange->SetResult(ExchangeResult::None);
    CommCallback_Finisched(exchange);
    return false;
  }
  const auto transaction = reference->ReferredTransaction();
  const auto exchange = BuildExchange(reference->Command()->Number(), transaction);
  exchange->SetCallback(weak_from_this());
  exchange->SetUserData(reference);
  StartInBackground(exchange);
  return false;
}

void CommWrapper::StartInBackground(const std::shared_ptr<Exchange>& exchange) {
  const UnderWay underWay{exchange, Link()};
  background_.push_back(underWay);
  try {
    Send(underWay);
  } catch (const Failure&) {
    // The caller knows by the failure; there is nothing left to complete.
    DropBackground(exchange);
    throw;
  }
}

void CommWrapper::CommCallback_Finisched(const std::shared_ptr<Exchange>& exchange) {
  if (!model_.Get()) return;
  if (exchange->State() != ZAFHartTypes::ExchangeState::Created) TellEnd(*exchange);
  if (!asynchronizer_.IsVisible()) IgnoreFailures([this] { asynchronizer_.Show(); });
  if (asynchronizer_.IsVisible()) {
    asynchronizer_.ExchangeQueue().push_back(exchange);
    asynchronizer_.EnableTimer();
  } else {
    CompleteExchange(exchange);
  }
}

void CommWrapper::CompleteExchange(const std::shared_ptr<Exchange>& exchange) {
  const auto self = shared_from_this();
  ForgetBackground(exchange);
  const auto gui = model_.Gui();
  const auto& reference = exchange->UserData();
  try {
    FinishAsync(exchange);
  } catch (const Failure& failure) {
    TraceFailure(*gui, ClassName(), failure);
    // Whoever waits for the end goes on all the same.
    IgnoreFailures([&] { gui->LifeSignal(LifeSignalCode::ExchangeFinished, reference); });
    throw;
  }
  gui->LifeSignal(LifeSignalCode::ExchangeFinished, reference);
}

void CommWrapper::FinishAsync(const std::shared_ptr<Exchange>& exchange) {
  const auto& reference = exchange->UserData();
  RequireCommand(reference, Source("AsyncExecuteCommand"));
  const auto transaction = reference->ReferredTransaction();
  const std::int16_t number = reference->Command()->Number();
  lastCommandNumber_ = number;
  const bool isLocal = exchange->ItemsOf() == nullptr;
  transaction->SetCompleted(isLocal ? CompleteLocally(number, *transaction)
                                    : ProcessReply(number, *exchange, *transaction));
  model_.Kernel()->AsyncExecuteCommandEnd(reference);
}

void CommWrapper::ForgetBackground(const std::shared_ptr<Exchange>& exchange) {
  std::erase_if(background_,
                [&](const UnderWay& underWay) { return underWay.exchange == exchange; });
}

void CommWrapper::DropBackground(const std::shared_ptr<Exchange>& exchange) {
  const auto underWay = std::ranges::find(background_, exchange, &UnderWay::exchange);
  const auto link = underWay == background_.end() ? nullptr : underWay->link;
  ForgetBackground(exchange);
  exchange->SetCallback({});
  std::erase(asynchronizer_.ExchangeQueue(), exchange);
  if (link && IsUnderWay(exchange->State())) IgnoreFailures([&] { link->Cancel(exchange); });
}

// Nobody is told any more: the component model or the connection is gone.
void CommWrapper::EndBackground() {
  asynchronizer_.ExchangeQueue().clear();
  const std::vector<UnderWay> ended = std::move(background_);
  background_.clear();
  for (const UnderWay& underWay : ended) {
    underWay.exchange->SetCallback({});
    IgnoreFailures([&] { underWay.link->Cancel(underWay.exchange); });
  }
}

}  // namespace ZAFHartLib
