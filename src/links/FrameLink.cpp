#include "links/FrameLink.h"

#include <algorithm>
#include <span>
#include <utility>

#include "hart/HexText.h"
#include "platform/Platform.h"
#include "types/Failure.h"

namespace HartLinks {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Exchange;
using ZAFHartTypes::ExchangeResult;
using ZAFHartTypes::ExchangeState;
using ZAFHartTypes::Failure;

namespace {

constexpr const char* kSource = "HartLinks.FrameLink";

hart::LinkFrame RequestOf(const Exchange& exchange, bool primaryMaster) {
  return hart::RequestFrame(static_cast<std::uint16_t>(exchange.CommandNumber()),
                            FrameLink::AddressOf(exchange), primaryMaster,
                            hart::FromHex(exchange.RequestData()));
}

bool AsksForPatience(const FrameEnd& end) {
  return end.reply && IsBusy(end.reply->data.front());
}

}  // namespace

hart::LinkAddress FrameLink::AddressOf(const Exchange& exchange) {
  const std::vector<std::uint8_t> bytes = hart::FromHex(exchange.LongAddress());
  if (bytes.size() == 5) return hart::LinkAddress::Unique(std::span<const std::uint8_t, 5>(bytes));
  if (bytes.size() == 1) return hart::LinkAddress::Polling(bytes[0]);
  if (!bytes.empty()) {
    throw Failure(ErrorNumber::InvalidArgument, kSource,
                  "A device address has 5 bytes, or one when it is a polling address: \"" +
                      exchange.LongAddress() + "\".");
  }
  const int polling = exchange.PollAddress();
  if (polling < 0 || polling > hart::LinkAddress::kMaxPolling) {
    throw Failure(ErrorNumber::InvalidArgument, kSource,
                  "A polling address is 0 to 63, not " + std::to_string(polling) + ".");
  }
  return hart::LinkAddress::Polling(static_cast<std::uint8_t>(polling));
}

FrameLink::FrameLink(std::shared_ptr<FrameCarrier> carrier, BusyPolicy busy)
    : carrier_(std::move(carrier)), busy_(busy) {}

FrameLink::~FrameLink() {
  const std::vector<Pending> left = std::move(pending_);
  for (const Pending& pending : left) {
    carrier_->Cancel(pending.request);
    pending.exchange->Finish(ExchangeState::Cancelled, ExchangeResult::None);
  }
}

void FrameLink::Execute(const std::shared_ptr<Exchange>& exchange) {
  if (IsUnderWay(exchange->State())) {
    throw Failure(ErrorNumber::InvalidProcedureCall, kSource, "The exchange is under way already.");
  }
  const auto request = std::make_shared<FrameRequest>(
      this, RequestOf(*exchange, carrier_->IsPrimaryMaster()),
      [this, exchange = exchange.get()](const FrameEnd& end) { Finish(*exchange, end); });
  exchange->SetState(ExchangeState::InProgress);
  pending_.push_back({exchange, request, busy_.attempts, {}});
  carrier_->Send(request);
}

void FrameLink::Cancel(const std::shared_ptr<Exchange>& exchange) {
  if (const auto pending = Find(*exchange); pending != pending_.end()) {
    carrier_->Cancel(pending->request);
    pending_.erase(pending);
    exchange->Finish(ExchangeState::Cancelled, ExchangeResult::None);
  }
}

std::vector<FrameLink::Pending>::iterator FrameLink::Find(const Exchange& exchange) {
  return std::find_if(pending_.begin(), pending_.end(),
                      [&](const Pending& pending) { return pending.exchange.get() == &exchange; });
}

void FrameLink::Finish(Exchange& exchange, const FrameEnd& end) {
  const auto pending = Find(exchange);
  if (pending == pending_.end()) return;
  if (AsksForPatience(end) && pending->attemptsLeft > 0) {
    --pending->attemptsLeft;
    pending->askAgain = platform::Current().Loop().StartOnce(
        busy_.delay, [this, request = pending->request] { carrier_->Send(request); });
    return;
  }
  const std::shared_ptr<Exchange> kept = pending->exchange;
  pending_.erase(pending);
  lastError_ = end.error;
  if (!end.reply) return kept->Finish(ExchangeState::NoReply, ExchangeResult::None);
  kept->SetResponseType(ZAFHartTypes::ResponseType::Bytes);
  kept->SetReplyData(hart::ToHex(end.reply->ExchangeData()));
  kept->Finish(ExchangeState::Completed, ExchangeResult::ReplyPresent);
}

}  // namespace HartLinks
