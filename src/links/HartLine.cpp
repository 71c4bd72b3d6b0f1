#include "links/HartLine.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "hart/StatusBytes.h"
#include "links/SerialPort.h"
#include "links/SharedByName.h"
#include "platform/Platform.h"
#include "types/Failure.h"

namespace HartLinks {

namespace hart = ZAFHartTypes::hart;
using platform::Milliseconds;

namespace {

// Other masters, devices in burst mode and noise leave gaps long before.
constexpr Milliseconds kLongestBusWait{10'000};
// Between two looks at the modem's carrier.
constexpr Milliseconds kCarrierInterval{10};
// What an adapter may need for sending beyond the time on the wire.
constexpr Milliseconds kSendingSlack{2000};

Milliseconds Now() {
  return platform::Current().GetClock().Now();
}

std::string CanonicalPort(const std::string& port) {
  std::error_code error;
  const auto path = std::filesystem::weakly_canonical(port, error);
  return error ? port : path.string();
}

// Commands 11, 21 and 73 go to all devices; the one that is meant answers, under this address or
// under its own.
bool IsBroadcast(const hart::LinkAddress& address) {
  return address.isLong && std::ranges::all_of(address.bytes, [](auto byte) { return byte == 0; });
}

}  // namespace

std::shared_ptr<HartLine> HartLine::Shared(const ModemOptions& options) {
  return SharedByName<HartLine>::OfThread().Get(CanonicalPort(options.port), [&] {
    return std::make_shared<HartLine>(options, std::make_unique<SerialPort>(options));
  });
}

HartLine::HartLine(const ModemOptions& options, std::unique_ptr<ByteChannel> channel)
    : options_(options),
      times_(CharacterTimeOf(options), options.primaryMaster, options.latency),
      access_(times_, options.primaryMaster),
      channel_(std::move(channel)) {
  channel_->SetListener(this);
}

HartLine::~HartLine() {
  channel_->SetListener(nullptr);
}

void HartLine::Send(const std::shared_ptr<FrameRequest>& request) {
  queue_.Add(request->Owner(), request);
  if (phase_ == Phase::Idle) GoOn();
}

void HartLine::Cancel(const std::shared_ptr<FrameRequest>& request) {
  request->TakeBack();
  if (queue_.Remove(request) || request != current_) return;
  current_.reset();
  if (phase_ != Phase::Sending) GoOn();
}

// The next request begins in an event of its own, behind the end of the one before: its link may
// ask again and still leaves the turn to the others.
void HartLine::GoOn() {
  step_.Cancel();
  phase_ = queue_.IsEmpty() ? Phase::Idle : Phase::WaitingForBus;
  if (phase_ == Phase::WaitingForBus) After(Milliseconds{0}, &HartLine::StartNext);
}

void HartLine::StartNext() {
  current_ = queue_.Take();
  if (!current_) return GoOn();
  attempt_ = 0;
  fault_ = hart::FrameFault::None;
  giveUpBus_ = Now() + kLongestBusWait;
  WaitForBus();
}

void HartLine::WaitForBus() {
  phase_ = Phase::WaitingForBus;
  try {
    OpenChannel();
  } catch (const ZAFHartTypes::Failure& failure) {
    return EndCurrent({std::nullopt, failure.Description()});
  }
  const Milliseconds now = Now();
  const bool hasCarrier = options_.watchCarrier && channel_->HasCarrier();
  if (access_.Free() <= now && !hasCarrier) return Transmit();
  if (now >= giveUpBus_) {
    return EndCurrent({std::nullopt, "The line at " + options_.port +
                                         " is never free: another master, a device in burst mode "
                                         "or noise keeps it busy."});
  }
  const Milliseconds wait =
      std::max(access_.Free() - now, hasCarrier ? kCarrierInterval : Milliseconds{0});
  After(wait, &HartLine::WaitForBus);
}

void HartLine::OpenChannel() {
  if (channel_->IsOpen()) return;
  channel_->Open();
  SetRequestToSend(false);
  decoder_ = {};
  access_.Lost(Now());
}

void HartLine::Transmit() {
  decoder_ = {};
  sent_ = current_->Frame();
  const auto bytes = hart::WithPreambles(hart::EncodeFrame(sent_), preambles_.For(sent_.address));
  phase_ = Phase::Sending;
  sentSize_ = bytes.size();
  step_ =
      platform::Current().Loop().StartOnce(times_.Characters(bytes.size()) + kSendingSlack, [this] {
        channel_->Close();
        OnBroken("The port " + options_.port + " does not send.");
      });
  SetRequestToSend(true);
  channel_->Send(bytes);
}

void HartLine::OnSent() {
  if (phase_ != Phase::Sending) return;
  SetRequestToSend(false);
  const Milliseconds now = Now();
  access_.Lost(now);
  if (!current_) return GoOn();
  phase_ = Phase::AwaitingReply;
  replyUntil_ = now + times_.Reply(sentSize_);
  replyEnd_ = now + times_.ReplyEnd(sentSize_);
  AwaitReply();
}

void HartLine::AwaitReply() {
  const Milliseconds until =
      std::min(std::max(replyUntil_, lastByte_ + times_.frameGap), replyEnd_);
  if (const Milliseconds now = Now(); now < until) return After(until - now, &HartLine::AwaitReply);
  // What looked like a frame that goes on may have hidden the reply.
  for (const hart::DecodedFrame& found : decoder_.Gap()) Hear(found);
  if (phase_ == Phase::AwaitingReply) TryAgain();
}

void HartLine::OnByte(std::uint8_t byte, bool faulty) {
  lastByte_ = Now();
  access_.HeardByte(lastByte_);
  if (!silence_.IsActive()) Arm(silence_, times_.frameGap, &HartLine::EndFrameInSilence);
  const auto found =
      faulty ? decoder_.ReceiveFaulty(byte) : decoder_.Receive(hart::Bytes(&byte, 1));
  for (const hart::DecodedFrame& decoded : found) Hear(decoded);
  // It may have given the bus to this master; what else came with it is heard first.
  if (!found.empty() && phase_ == Phase::WaitingForBus && current_) {
    After(Milliseconds{0}, &HartLine::WaitForBus);
  }
}

void HartLine::EndFrameInSilence() {
  const Milliseconds left = lastByte_ + times_.frameGap - Now();
  if (left > Milliseconds{0}) return Arm(silence_, left, &HartLine::EndFrameInSilence);
  for (const hart::DecodedFrame& found : decoder_.Gap()) Hear(found);
}

void HartLine::Hear(const hart::DecodedFrame& decoded) {
  const hart::LinkFrame& frame = decoded.frame;
  if (!decoded.IsGood()) {
    fault_ = decoded.fault;
    return access_.Lost(Now());
  }
  if (IsOwnEcho(frame)) return;
  access_.Heard(frame, Now());
  preambles_.Learn(frame);
  if (frame.type == hart::FrameType::Burst) OfferBurst(frame);
  if (IsAwaited(frame)) TakeReply(frame);
}

bool HartLine::IsOwnEcho(const hart::LinkFrame& frame) const {
  return (phase_ == Phase::Sending || phase_ == Phase::AwaitingReply) && frame == sent_;
}

bool HartLine::IsAwaited(const hart::LinkFrame& frame) const {
  if (phase_ != Phase::AwaitingReply) return false;
  if (!IsBroadcast(sent_.address)) return hart::Answers(frame, sent_);
  hart::LinkFrame toSame = frame;
  toSame.address = sent_.address;
  return hart::Answers(toSame, sent_);
}

void HartLine::OfferBurst(const hart::LinkFrame& frame) {
  if (!onBurst_) return;
  std::erase_if(bursts_, [](const platform::Subscription& one) { return !one.IsActive(); });
  bursts_.push_back(
      platform::Current().Loop().Post([observer = onBurst_, frame] { observer(frame); }));
}

void HartLine::TakeReply(const hart::LinkFrame& frame) {
  if (hart::IsCommunicationError(frame.data[0]) && attempt_ < options_.retries) return TryAgain();
  EndCurrent({frame, {}});
}

void HartLine::TryAgain() {
  if (attempt_ == options_.retries) {
    const std::string error = fault_ == hart::FrameFault::None
                                  ? std::string()
                                  : "What was received at " + options_.port +
                                        " is damaged: " + std::string(hart::FaultText(fault_)) +
                                        ".";
    return EndCurrent({std::nullopt, error});
  }
  ++attempt_;
  giveUpBus_ = Now() + kLongestBusWait;
  phase_ = Phase::WaitingForBus;
  After(Milliseconds{0}, &HartLine::WaitForBus);
}

void HartLine::EndCurrent(FrameEnd end) {
  const std::shared_ptr<FrameRequest> request = std::exchange(current_, nullptr);
  request->End(std::move(end));
  GoOn();
}

void HartLine::OnBroken(const std::string& reason) {
  decoder_ = {};
  if (current_) return EndCurrent({std::nullopt, reason});
  GoOn();
}

void HartLine::SetRequestToSend(bool on) {
  if (options_.rts == RequestToSend::WhileSending) channel_->SetRequestToSend(on);
}

// The step is taken in the event after the timer's, so that what the port has received is heard
// first: a program that was held up elsewhere would take its own absence for silence on the line.
void HartLine::Arm(platform::Subscription& timer, Milliseconds delay, Step step) {
  timer = platform::Current().Loop().StartOnce(delay, [this, &timer, step] {
    timer = platform::Current().Loop().Post([this, step] { (this->*step)(); });
  });
}

}  // namespace HartLinks
