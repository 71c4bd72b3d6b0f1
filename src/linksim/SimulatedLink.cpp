#include "linksim/SimulatedLink.h"

#include <algorithm>

#include "hart/HexText.h"
#include "hart/StatusBytes.h"
#include "linksim/FaultyReply.h"
#include "linksim/ItemCoding.h"
#include "platform/Platform.h"
#include "types/Failure.h"

namespace HartLinkSim {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::DataItem;
using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Exchange;
using ZAFHartTypes::ExchangeResult;
using ZAFHartTypes::ExchangeState;
using ZAFHartTypes::Failure;

namespace {

Faults FaultsFromSettings() {
  const platform::Registry& registry = platform::Current().Registry();
  const auto value = [&](std::string_view name) {
    return registry.Value(kEmulatorSettingsKey, name).value_or("");
  };
  try {
    Faults faults = Faults::Parse(value("Faults"));
    if (const std::string latency = value("Latency"); !latency.empty()) {
      faults.Add("latency:" + latency);
    }
    return faults;
  } catch (const Failure& failure) {
    throw Failure(
        failure.Number(), failure.Source(),
        "Setting of the key " + std::string(kEmulatorSettingsKey) + ": " + failure.Description());
  }
}

void AddNamedValues(Exchange& exchange, const Frame& reply) {
  const ZAFHartTypes::DataItemList& items = *exchange.ReplyItems();
  const ItemLayout layout = LayOut(items);
  std::size_t index = 0;
  for (const DataItem& item : items) {
    const ItemPlace& place = layout[index++];
    if (!item.IsVariable() || place.repeated) continue;
    if (auto value = ReadItem(reply, item, place)) {
      exchange.ResponseInfo().Add(item.VariableDefinition().Key(), *std::move(value));
    }
  }
}

}  // namespace

SimulatedLink::SimulatedLink() : faults_(FaultsFromSettings()) {}

SimulatedLink::~SimulatedLink() {
  const std::vector<Pending> left = std::move(pending_);
  for (const Pending& pending : left) {
    pending.exchange->Finish(ExchangeState::Cancelled, ExchangeResult::None);
  }
}

void SimulatedLink::Execute(const std::shared_ptr<Exchange>& exchange) {
  if (IsUnderWay(exchange->State())) {
    throw Failure(ErrorNumber::InvalidProcedureCall, "HartLinkSim.Execute",
                  "The exchange is under way already.");
  }
  const ActiveFaults faults = faults_.Next();
  exchange->SetState(ExchangeState::InProgress);
  if (faults.latency == platform::Milliseconds{0}) return Complete(*exchange, faults);
  pending_.push_back(
      {exchange, platform::Current().Loop().StartOnce(faults.latency, [this, exchange, faults] {
         if (Take(*exchange)) Complete(*exchange, faults);
       })});
}

void SimulatedLink::Cancel(const std::shared_ptr<Exchange>& exchange) {
  if (Take(*exchange)) exchange->Finish(ExchangeState::Cancelled, ExchangeResult::None);
}

bool SimulatedLink::Take(const Exchange& exchange) {
  return std::erase_if(pending_, [&](const Pending& pending) {
           return pending.exchange.get() == &exchange;
         }) != 0;
}

void SimulatedLink::Complete(Exchange& exchange, const ActiveFaults& faults) {
  bool isAnswered = false;
  try {
    auto reply = ReplyTo(exchange, faults);
    isAnswered = reply.has_value();
    if (reply) Deliver(exchange, *std::move(reply));
  } catch (const Failure&) {
    exchange.Finish(ExchangeState::NoReply, ExchangeResult::None);
    throw;
  }
  if (!isAnswered) return exchange.Finish(ExchangeState::NoReply, ExchangeResult::None);
  if (faults.wrongCommand) {
    exchange.SetCommandNumber(static_cast<std::int16_t>(exchange.CommandNumber() ^ 1));
  }
  exchange.Finish(ExchangeState::Completed, ExchangeResult::ReplyPresent);
}

std::optional<SimulatedLink::Reply> SimulatedLink::ReplyTo(const Exchange& exchange,
                                                           const ActiveFaults& faults) {
  std::optional<Reply> reply = FaultyReply(
      exchange, faults, {[&] { return Answer(exchange); }, [&] { return DeviceStatus(exchange); }});
  if (faults.badCheck) return std::nullopt;  // a wrong check byte: no link takes that for a reply
  return reply;
}

void SimulatedLink::Deliver(Exchange& exchange, Reply reply) const {
  exchange.SetResponseType(responseType_);
  exchange.ResponseInfo().Clear();
  if (responseType_ == ZAFHartTypes::ResponseType::NamedValues && exchange.ReplyItems()) {
    Frame frame;
    frame.SetBytes(reply);
    AddNamedValues(exchange, frame);
    reply.resize(std::min(reply.size(), hart::kStatusSize));
  }
  exchange.SetReplyData(hart::ToHex(reply));
}

}  // namespace HartLinkSim
