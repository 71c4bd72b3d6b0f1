#include "links/HartIpConnection.h"

#include <algorithm>
#include <utility>

#include "hart/StatusBytes.h"
#include "platform/Platform.h"

namespace HartLinks {

namespace hart = ZAFHartTypes::hart;
using hart::HartIpId;
using hart::HartIpType;
using platform::Milliseconds;

namespace {

constexpr Milliseconds kFirstPause{100};
constexpr Milliseconds kLongestPause{10'000};
// A silent session is kept alive when this part of the granted time is over: two thirds are left
// for messages that get lost.
constexpr int kIdlePart = 3;

platform::MessageLoop& Loop() {
  return platform::Current().Loop();
}

Milliseconds Now() {
  return platform::Current().GetClock().Now();
}

// Warnings grant the session; of the codes that are warnings in a device's reply, one is not.
bool IsGranted(const hart::HartIpMessage& message) {
  return message.type == HartIpType::Response && hart::IsCarriedOut(message.status) &&
         message.status != hart::kHartIpVersionNotSupported;
}

std::string RefusalText(std::uint8_t status) {
  switch (status) {
    case hart::kHartIpInvalidMaster:
      return "The server has no session for this kind of master";
    case hart::kHartIpVersionNotSupported:
      return "The server does not know version 1 of HART-IP";
    case hart::kHartIpAllSessionsInUse:
      return "All sessions of the server are in use";
    case hart::kHartIpAccessRestricted:
      return "The server restricts access";
    default:
      return "The server refuses a session (status " + std::to_string(status) + ")";
  }
}

}  // namespace

HartIpConnection::HartIpConnection(const HartIpOptions& options, IpChannelOpener open, User& user)
    : options_(options), open_(std::move(open)), user_(user), pause_(kFirstPause) {}

HartIpConnection::~HartIpConnection() {
  Close();
}

void HartIpConnection::Close() {
  if (!HasSession()) return;
  Transmit({HartIpType::Request, HartIpId::SessionClose, 0, ++sequence_, {}});
}

void HartIpConnection::Want() {
  if (state_ != State::Closed) return;
  state_ = State::Opening;
  limit_ =
      Loop().StartOnce(options_.connectTimeout, [this] { Lose("The server does not answer"); });
  channel_ = open_(options_.server, failedAttempts_, *this);
}

void HartIpConnection::OnOpen() {
  state_ = State::Initiating;
  stream_ = {};
  initiate_ = {HartIpType::Request, HartIpId::SessionInitiate, 0, ++sequence_,
               hart::EncodeSession({options_.primaryMaster, options_.inactivityTime})};
  Transmit(initiate_);
  if (options_.server.transport == Transport::Tcp) return;
  initiateAgain_ = Loop().StartTimer(options_.timeout, [this] { Transmit(initiate_); });
}

std::uint16_t HartIpConnection::Send(std::vector<std::uint8_t> body) {
  SendAgain(++sequence_, std::move(body));
  return sequence_;
}

void HartIpConnection::SendAgain(std::uint16_t sequence, std::vector<std::uint8_t> body) {
  Transmit({HartIpType::Request, HartIpId::TokenPassing, 0, sequence, std::move(body)});
}

void HartIpConnection::Transmit(const Message& message) {
  sentAt_ = Now();
  channel_->Send(hart::EncodeHartIp(message));
}

void HartIpConnection::Lose(const std::string& reason) {
  // A server that hears this has the session free for others.
  Close();
  End(reason);
}

void HartIpConnection::End(const std::string& reason) {
  if (state_ == State::Closed || state_ == State::Pausing) return;
  const bool hadOne = HasSession();
  channel_.reset();
  for (auto* timer : {&limit_, &initiateAgain_, &idle_, &keepAliveAnswer_}) timer->Cancel();
  if (!hadOne) ++failedAttempts_;
  state_ = State::Pausing;
  pausing_ = Loop().StartOnce(pause_, [this] { EndPause(); });
  pause_ = std::min(pause_ * 2, kLongestPause);
  user_.OnNoSession(options_.server.Text() + ": " + reason, hadOne);
}

void HartIpConnection::EndPause() {
  state_ = State::Closed;
  if (user_.WantsSession()) Want();
}

void HartIpConnection::OnReceive(hart::Bytes bytes) {
  if (options_.server.transport == Transport::Udp) return Take(hart::DecodeHartIp(bytes));
  for (const hart::DecodedHartIp& decoded : stream_.Receive(bytes)) {
    Take(decoded);
    if (!channel_) return;
  }
}

void HartIpConnection::Take(const hart::DecodedHartIp& decoded) {
  if (!decoded.IsGood()) return TakeFault(decoded);
  ++heard_;
  const Message& message = decoded.message;
  switch (message.type) {
    case HartIpType::Request:
      if (message.id == HartIpId::SessionClose) End("The server has closed the session");
      return;
    case HartIpType::Publish:
      return user_.OnPublish(message);
    case HartIpType::Response:
    case HartIpType::Nak:
      return TakeAnswer(message);
  }
}

// A damaged datagram is as good as lost. In a stream nothing can be found behind the fault, and a
// server that begins with another version will not answer in this one.
void HartIpConnection::TakeFault(const hart::DecodedHartIp& decoded) {
  const bool isForeign = state_ == State::Initiating && decoded.fault == hart::HartIpFault::Version;
  if (isForeign || options_.server.transport == Transport::Tcp) {
    Lose("The server sent what is no HART-IP: " + std::string(hart::FaultText(decoded.fault)));
  }
}

void HartIpConnection::TakeAnswer(const Message& message) {
  if (state_ == State::Initiating) {
    if (message.sequence == initiate_.sequence) TakeInitiated(message);
  } else if (keepAliveAnswer_.IsActive() && message.sequence == keepAlive_.sequence) {
    TakeKeepAlive(message);
  } else if (message.type == HartIpType::Nak || message.id == HartIpId::TokenPassing) {
    user_.OnAnswer(message);
  }
}

void HartIpConnection::TakeInitiated(const Message& message) {
  if (!IsGranted(message)) return Lose(RefusalText(message.status));
  limit_.Cancel();
  initiateAgain_.Cancel();
  const auto granted = hart::DecodeSession(message.body);
  idleTime_ = (granted ? granted->inactivityClose : options_.inactivityTime) / kIdlePart;
  state_ = State::InSession;
  failedAttempts_ = 0;
  pause_ = kFirstPause;
  WatchIdleness();
  user_.OnSession();
}

void HartIpConnection::WatchIdleness() {
  if (idleTime_ == Milliseconds{0}) return;
  idle_ = Loop().StartOnce(sentAt_ + idleTime_ - Now(), [this] {
    const bool isIdle = Now() - sentAt_ >= idleTime_;
    isIdle ? Confirm() : WatchIdleness();
  });
}

void HartIpConnection::Confirm() {
  if (!HasSession() || keepAliveAnswer_.IsActive()) return;
  keepAlive_ = {HartIpType::Request, HartIpId::KeepAlive, 0, ++sequence_, {}};
  heardBefore_ = heard_;
  SendKeepAlive(options_.Sendings());
}

void HartIpConnection::SendKeepAlive(int sendings) {
  if (sendings == 0 && heard_ == heardBefore_) return Lose("The server does not answer any more");
  if (sendings == 0) return WatchIdleness();  // it answers other messages
  Transmit(keepAlive_);
  keepAliveAnswer_ =
      Loop().StartOnce(options_.AnswerTime(), [this, sendings] { SendKeepAlive(sendings - 1); });
}

void HartIpConnection::TakeKeepAlive(const Message& message) {
  if (!IsGranted(message)) return End("The server does not know the session any more");
  keepAliveAnswer_.Cancel();
  WatchIdleness();
}

}  // namespace HartLinks
