#include "linksim/SimulatedLink.h"

#include <algorithm>

#include "ddobjects/Transaction.h"
#include "hart/HexText.h"
#include "hart/StatusBytes.h"
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

// What an overlong reply has at its end.
constexpr std::size_t kSurplusBytes = 4;
constexpr std::uint8_t kSurplusByte = 0xA5;

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

// The device does not carry the command out. What a code means, the command's definition says
// first.
bool IsRefusal(const Exchange& exchange, std::uint8_t responseCode) {
  if (exchange.ItemsOf()) {
    if (const auto* code = exchange.ItemsOf()->ResponseCodes().Find(responseCode)) {
      return IsError(code->CodeType());
    }
  }
  return !hart::IsCarriedOut(responseCode);
}

void Deform(std::vector<std::uint8_t>& reply, const ActiveFaults& faults) {
  if (faults.corrupt) {
    std::for_each(reply.begin() + hart::kStatusSize, reply.end(),
                  [](std::uint8_t& byte) { byte = static_cast<std::uint8_t>(~byte); });
  }
  if (faults.truncated) reply.pop_back();
  if (faults.overlong) reply.insert(reply.end(), kSurplusBytes, kSurplusByte);
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
  std::optional<Reply> reply;
  try {
    reply = ReplyTo(exchange, faults);
    if (reply) {
      Deform(*reply, faults);
      Deliver(exchange, *std::move(reply));
    }
  } catch (const Failure&) {
    exchange.Finish(ExchangeState::NoReply, ExchangeResult::None);
    throw;
  }
  if (!reply) return exchange.Finish(ExchangeState::NoReply, ExchangeResult::None);
  if (faults.wrongCommand) {
    exchange.SetCommandNumber(static_cast<std::int16_t>(exchange.CommandNumber() ^ 1));
  }
  exchange.Finish(ExchangeState::Completed, ExchangeResult::ReplyPresent);
}

std::optional<SimulatedLink::Reply> SimulatedLink::ReplyTo(const Exchange& exchange,
                                                           const ActiveFaults& faults) {
  if (faults.noReply) return std::nullopt;
  std::optional<Reply> reply;
  if (faults.communicationError != 0) {
    reply = Reply{faults.communicationError, DeviceStatus(exchange)};
  } else if (faults.response != 0 && IsRefusal(exchange, faults.response)) {
    reply = Reply{faults.response, DeviceStatus(exchange)};
  } else {
    reply = Answer(exchange);
    if (reply && faults.response != 0) reply->front() = faults.response;
  }
  if (reply) reply->at(1) |= faults.deviceStatus;
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
