#include "links/HartIpSession.h"

#include <algorithm>
#include <utility>

#include "hart/StatusBytes.h"
#include "links/SharedByName.h"
#include "platform/AsciiText.h"
#include "platform/Platform.h"

namespace HartLinks {

namespace hart = ZAFHartTypes::hart;
using platform::Milliseconds;

namespace {

Milliseconds Now() {
  return platform::Current().GetClock().Now();
}

// A device that was asked at the broadcast address may answer with its own; a gateway's reply may
// have the bit of the master that the gateway is itself.
bool IsAnswerTo(hart::LinkFrame frame, const hart::LinkFrame& request) {
  constexpr hart::LinkAddress kBroadcast{.isLong = true};
  frame.primaryMaster = request.primaryMaster;
  if (request.address == kBroadcast && frame.address.isLong) frame.address = kBroadcast;
  return hart::Answers(frame, request);
}

bool HasCommunicationError(const hart::LinkFrame& reply) {
  return hart::IsCommunicationError(reply.data.front());
}

}  // namespace

std::shared_ptr<HartIpSession> HartIpSession::Shared(const HartIpOptions& options) {
  const std::string name = platform::FoldAscii(options.server.Text()) +
                           (options.primaryMaster ? " primary" : " secondary");
  return SharedByName<HartIpSession>::OfThread().Get(name, [&] {
    return std::make_shared<HartIpSession>(options, SocketChannels(options.observer));
  });
}

HartIpSession::HartIpSession(const HartIpOptions& options, IpChannelOpener open)
    : options_(options), connection_(options, std::move(open), *this) {}

void HartIpSession::Send(const std::shared_ptr<FrameRequest>& request) {
  queue_.Add(request->Owner(), {request, Now()});
  if (HasSession()) return StartNext();
  connection_.Want();
  if (!waitingTimer_.IsActive()) WatchWaiting(options_.connectTimeout);
}

void HartIpSession::Cancel(const std::shared_ptr<FrameRequest>& request) {
  request->TakeBack();
  if (queue_.Remove({request})) return;
  for (Outstanding& outstanding : outstanding_) {
    if (outstanding.request == request) outstanding.request = nullptr;
  }
}

void HartIpSession::OnSession() {
  waitingTimer_.Cancel();
  StartNext();
}

void HartIpSession::OnNoSession(const std::string& reason, bool hadOne) {
  reason_ = reason;
  if (!hadOne) return;
  lostAt_ = Now();
  for (const Outstanding& outstanding : std::exchange(outstanding_, {})) {
    if (outstanding.request) outstanding.request->End({std::nullopt, reason});
  }
  if (!queue_.IsEmpty()) WatchWaiting(options_.connectTimeout);
}

void HartIpSession::WatchWaiting(Milliseconds forTime) {
  waitingTimer_ = platform::Current().Loop().StartOnce(forTime, [this] { EndWaiting(); });
}

void HartIpSession::EndWaiting() {
  const Milliseconds now = Now();
  Milliseconds next = Milliseconds::max();
  const auto tooLong = queue_.TakeIf([&](const Waiting& waiting) {
    const Milliseconds end = std::max(waiting.since, lostAt_) + options_.connectTimeout;
    if (end > now) next = std::min(next, end);
    return end <= now;
  });
  for (const Waiting& waiting : tooLong) waiting.request->End({std::nullopt, reason_});
  if (!queue_.IsEmpty()) WatchWaiting(next - now);
}

void HartIpSession::StartNext() {
  const auto most = static_cast<std::size_t>(options_.outstanding);
  while (HasSession() && outstanding_.size() < most && !queue_.IsEmpty()) Start(queue_.Take());
}

void HartIpSession::Start(Waiting waiting) {
  Outstanding outstanding;
  outstanding.body = hart::EncodeFrame(waiting.request->Frame());
  outstanding.request = std::move(waiting.request);
  outstanding.wasRefused = waiting.wasRefused;
  outstanding.repetitionsLeft = options_.retries;
  SendAsNew(outstanding_.emplace_back(std::move(outstanding)));
}

void HartIpSession::SendAsNew(Outstanding& outstanding) {
  outstanding.heardBefore = connection_.Heard();
  outstanding.sendingsLeft = options_.Sendings() - 1;
  outstanding.sequence = connection_.Send(outstanding.body);
  AwaitAnswer(outstanding);
}

void HartIpSession::AwaitAnswer(Outstanding& outstanding) {
  outstanding.timer = platform::Current().Loop().StartOnce(
      options_.AnswerTime(), [this, sequence = outstanding.sequence] { OnTimeout(sequence); });
}

HartIpSession::Place HartIpSession::Find(std::uint16_t sequence) {
  return std::find_if(
      outstanding_.begin(), outstanding_.end(),
      [&](const Outstanding& outstanding) { return outstanding.sequence == sequence; });
}

void HartIpSession::OnTimeout(std::uint16_t sequence) {
  const Place place = Find(sequence);
  if (place == outstanding_.end()) return;
  if (place->request && place->sendingsLeft > 0) {
    --place->sendingsLeft;
    connection_.SendAgain(sequence, place->body);
    return AwaitAnswer(*place);
  }
  const bool isSilent = connection_.Heard() == place->heardBefore;
  if (place->request && isSilent) return connection_.Lose("The server does not answer any more");
  Finish(place, {});
}

void HartIpSession::OnAnswer(const HartIpConnection::Message& message) {
  const Place place = Find(message.sequence);
  if (place == outstanding_.end()) return;
  if (!place->request) return Finish(place, {});
  if (message.type == hart::HartIpType::Nak) return TakeRefusal(place);
  TakeFrame(place, message);
}

void HartIpSession::TakeRefusal(Place place) {
  const std::string text = "The server refused the request";
  if (place->wasRefused) return Finish(place, Failed(text));
  queue_.Return(place->request->Owner(), {place->request, Now(), true});
  outstanding_.erase(place);
  connection_.Lose(text);
}

void HartIpSession::TakeFrame(Place place, const HartIpConnection::Message& message) {
  hart::DecodedFrame decoded = hart::DecodeFrame(message.body);
  if (decoded.IsGood() && IsAnswerTo(decoded.frame, place->request->Frame())) {
    const bool isWhole = !HasCommunicationError(decoded.frame);
    FrameEnd end{std::move(decoded.frame), ""};
    return isWhole ? Finish(place, std::move(end)) : AskAgainOr(place, std::move(end));
  }
  if (message.status != hart::kHartIpSuccess) {
    // The device may be out of reach, or the session unknown to the server.
    Finish(place, Failed("The server answered with status " + std::to_string(message.status)));
    return connection_.Confirm();
  }
  if (message.body.empty()) return Finish(place, {});  // the device did not answer
  const std::string_view fault =
      decoded.IsGood() ? "it belongs to another request" : hart::FaultText(decoded.fault);
  AskAgainOr(place, Failed("The answer is damaged: " + std::string(fault)));
}

FrameEnd HartIpSession::Failed(const std::string& what) const {
  return {std::nullopt, options_.server.Text() + ": " + what};
}

void HartIpSession::AskAgainOr(Place place, FrameEnd end) {
  if (place->repetitionsLeft == 0) return Finish(place, std::move(end));
  --place->repetitionsLeft;
  SendAsNew(*place);
}

void HartIpSession::Finish(Place place, FrameEnd end) {
  if (place->request) place->request->End(std::move(end));
  outstanding_.erase(place);
  StartNext();
}

void HartIpSession::OnPublish(const HartIpConnection::Message& message) {
  if (!published_) return;
  const hart::DecodedFrame decoded = hart::DecodeFrame(message.body);
  if (decoded.IsGood()) published_(decoded.frame);
}

}  // namespace HartLinks
