#include "links/CapturingLink.h"

#include <algorithm>
#include <utility>

#include "hart/HartIpMessage.h"
#include "hart/HexText.h"
#include "links/FrameLink.h"
#include "platform/Platform.h"
#include "types/Failure.h"

namespace HartLinks {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::Exchange;
using ZAFHartTypes::ExchangeResult;
using ZAFHartTypes::ExchangeState;

namespace {

// Addresses that are set aside for documentation: no host has them.
constexpr std::array<std::uint8_t, 16> kHost{192, 0, 2, 1};
constexpr std::array<std::uint8_t, 16> kDevice{192, 0, 2, 2};

// Each link of a thread has a port of its own.
struct NextPort {
  std::uint16_t port = 49152;
};

Flow NewFlow() {
  const std::uint16_t port = platform::Current().PerThread<NextPort>().port++;
  return {Transport::Udp, {false, kHost, 0, port}, {false, kDevice, 0, hart::kHartIpPort}};
}

std::shared_ptr<Exchange> CopyOf(const Exchange& outer) {
  auto inner = std::make_shared<Exchange>();
  inner->SetCommandNumber(outer.CommandNumber());
  inner->SetPollAddress(outer.PollAddress());
  inner->SetTag(outer.Tag());
  inner->SetLongAddress(outer.LongAddress());
  inner->SetRequestData(outer.RequestData());
  inner->SetReplyData(outer.ReplyData());
  inner->SetItemsOf(outer.ItemsOf());
  inner->SetResponseType(outer.ResponseType());
  inner->SetUserData(outer.UserData());
  return inner;
}

void TakeReply(Exchange& outer, const Exchange& inner) {
  outer.SetCommandNumber(inner.CommandNumber());
  outer.SetReplyData(inner.ReplyData());
  outer.SetResponseType(inner.ResponseType());
  outer.ResponseInfo() = inner.ResponseInfo();
}

bool HasPrimaryMaster(const ZAFHartTypes::ILink& link) {
  const auto* frames = dynamic_cast<const FrameLink*>(&link);
  return !frames || frames->Carrier().IsPrimaryMaster();
}

}  // namespace

std::shared_ptr<CapturingLink> CapturingLink::Create(std::shared_ptr<ZAFHartTypes::ILink> link,
                                                     std::shared_ptr<IPacketObserver> observer) {
  return std::shared_ptr<CapturingLink>(new CapturingLink(std::move(link), std::move(observer)));
}

CapturingLink::CapturingLink(std::shared_ptr<ZAFHartTypes::ILink> link,
                             std::shared_ptr<IPacketObserver> observer)
    : link_(std::move(link)),
      observer_(std::move(observer)),
      flow_(NewFlow()),
      primaryMaster_(HasPrimaryMaster(*link_)) {}

CapturingLink::~CapturingLink() {
  const std::vector<Pending> left = std::move(pending_);
  for (const Pending& pending : left) {
    link_->Cancel(pending.inner);
    pending.outer->Finish(ExchangeState::Cancelled, ExchangeResult::None);
  }
}

void CapturingLink::Execute(const std::shared_ptr<Exchange>& exchange) {
  if (IsUnderWay(exchange->State())) {
    throw ZAFHartTypes::Failure(ZAFHartTypes::ErrorNumber::InvalidProcedureCall,
                                "HartLinks.CapturingLink", "The exchange is under way already.");
  }
  const auto inner = CopyOf(*exchange);
  inner->SetCallback(weak_from_this());
  if (!sessionRecorded_) RecordSession();
  pending_.push_back({exchange, inner, RecordRequest(*inner)});
  try {
    link_->Execute(inner);
  } catch (const ZAFHartTypes::Failure&) {
    std::erase_if(pending_, [&](const Pending& pending) { return pending.inner == inner; });
    throw;
  }
  if (IsUnderWay(inner->State())) exchange->SetState(inner->State());
}

void CapturingLink::Cancel(const std::shared_ptr<Exchange>& exchange) {
  for (const Pending& pending : std::vector<Pending>(pending_)) {
    if (pending.outer == exchange) link_->Cancel(pending.inner);
  }
}

void CapturingLink::CommCallback_Finisched(const std::shared_ptr<Exchange>& inner) {
  const auto at = std::find_if(pending_.begin(), pending_.end(),
                               [&](const Pending& pending) { return pending.inner == inner; });
  if (at == pending_.end()) return;
  const Pending pending = std::move(*at);
  pending_.erase(at);
  if (inner->Result() == ExchangeResult::ReplyPresent) {
    if (pending.request) RecordReply(*pending.request, *inner);
    TakeReply(*pending.outer, *inner);
  }
  pending.outer->Finish(inner->State(), inner->Result());
}

void CapturingLink::RecordSession() {
  const auto body = hart::EncodeSession({primaryMaster_, std::chrono::minutes(1)});
  sessionRecorded_ = true;
  ++sequence_;
  for (const auto type : {hart::HartIpType::Request, hart::HartIpType::Response}) {
    Record({type, hart::HartIpId::SessionInitiate, 0, sequence_, body});
  }
}

std::optional<CapturingLink::Request> CapturingLink::RecordRequest(const Exchange& exchange) {
  std::optional<Request> request;
  // What no frame can hold is not recorded; the other link says what is wrong with it.
  platform::IgnoreFailures([&] {
    const hart::LinkFrame frame = hart::RequestFrame(
        static_cast<std::uint16_t>(exchange.CommandNumber()), FrameLink::AddressOf(exchange),
        primaryMaster_, hart::FromHex(exchange.RequestData()));
    ++sequence_;
    Record({hart::HartIpType::Request, hart::HartIpId::TokenPassing, 0, sequence_,
            hart::EncodeFrame(frame)});
    request = Request{frame, sequence_};
  });
  return request;
}

void CapturingLink::RecordReply(const Request& request, const Exchange& exchange) {
  platform::IgnoreFailures([&] {
    const auto frame = hart::ReplyFrame(request.frame, hart::FromHex(exchange.ReplyData()));
    Record({hart::HartIpType::Response, hart::HartIpId::TokenPassing, 0, request.sequence,
            hart::EncodeFrame(frame)});
  });
}

void CapturingLink::Record(const hart::HartIpMessage& message) {
  const bool isSent = message.type == hart::HartIpType::Request;
  observer_->OnBytes(flow_, isSent ? Direction::Sent : Direction::Received,
                     hart::EncodeHartIp(message));
}

std::string CapturingLink::LastError() const {
  const auto* status = dynamic_cast<const ZAFHartTypes::ILinkStatus*>(link_.get());
  return status ? status->LastError() : "";
}

bool CapturingLink::RetriesBusy() const {
  const auto* retrying = dynamic_cast<const ZAFHartTypes::IBusyRetrying*>(link_.get());
  return retrying && retrying->RetriesBusy();
}

void CapturingLink::SetBusyAttempts(int attempts) {
  if (auto* retrying = dynamic_cast<ZAFHartTypes::IBusyRetrying*>(link_.get())) {
    retrying->SetBusyAttempts(attempts);
  }
}

}  // namespace HartLinks
