#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "hart/FrameDecoder.h"
#include "links/BusAccess.h"
#include "links/ByteChannel.h"
#include "links/FrameCarrier.h"
#include "links/ModemOptions.h"
#include "links/PreambleCounts.h"
#include "links/RequestQueue.h"
#include "platform/Export.h"

namespace HartLinks {

// The master on a modem's line: one request at a time, those who share the line in turns. Waits for
// its right to send, sends, waits for the reply, and tries again when none comes, when it is
// damaged, or when the device reports that it received the request with an error. The channel is
// opened at the first request and, after it broke, again at the next.
class ZAF_API HartLine : public FrameCarrier, private ByteChannel::Listener {
 public:
  using BurstObserver = std::function<void(const ZAFHartTypes::hart::LinkFrame&)>;

  // The thread's line at options.port. Who comes first decides its other options.
  static std::shared_ptr<HartLine> Shared(const ModemOptions& options);

  // One of its own, on a channel that is closed yet. REQUIRES: a channel.
  HartLine(const ModemOptions& options, std::unique_ptr<ByteChannel> channel);
  ~HartLine() override;

  bool IsPrimaryMaster() const override { return options_.primaryMaster; }
  void Send(const std::shared_ptr<FrameRequest>& request) override;
  // Ends the wait at once. A request that is being sent is sent to its end, its reply is ignored.
  void Cancel(const std::shared_ptr<FrameRequest>& request) override;

  // Receives the frames of devices in burst mode, in events of their own, as long as somebody uses
  // the line.
  void SetBurstObserver(BurstObserver observer) { onBurst_ = std::move(observer); }

 private:
  using Step = void (HartLine::*)();
  enum class Phase : std::uint8_t { Idle, WaitingForBus, Sending, AwaitingReply };

  void OnByte(std::uint8_t byte, bool faulty) override;
  void OnSent() override;
  void OnBroken(const std::string& reason) override;

  void StartNext();
  void WaitForBus();
  void OpenChannel();
  void Transmit();
  void Hear(const ZAFHartTypes::hart::DecodedFrame& decoded);
  void OfferBurst(const ZAFHartTypes::hart::LinkFrame& frame);
  void TakeReply(const ZAFHartTypes::hart::LinkFrame& frame);
  void AwaitReply();
  void EndFrameInSilence();
  void TryAgain();
  void EndCurrent(FrameEnd end);
  void GoOn();
  bool IsOwnEcho(const ZAFHartTypes::hart::LinkFrame& frame) const;
  bool IsAwaited(const ZAFHartTypes::hart::LinkFrame& frame) const;
  void SetRequestToSend(bool on);
  void After(platform::Milliseconds delay, Step step) { Arm(step_, delay, step); }
  void Arm(platform::Subscription& timer, platform::Milliseconds delay, Step step);

  ModemOptions options_;
  BusTimes times_;
  BusAccess access_;
  std::unique_ptr<ByteChannel> channel_;
  ZAFHartTypes::hart::FrameDecoder decoder_;
  PreambleCounts preambles_;
  BurstObserver onBurst_;
  std::vector<platform::Subscription> bursts_;  // to be offered

  RequestQueue<std::shared_ptr<FrameRequest>> queue_;
  Phase phase_ = Phase::Idle;
  platform::Subscription step_;            // what comes next in this phase
  std::shared_ptr<FrameRequest> current_;  // nothing when it was cancelled
  ZAFHartTypes::hart::LinkFrame sent_;
  std::size_t sentSize_ = 0;                                                     // with preambles
  int attempt_ = 0;                                                              // from 0
  ZAFHartTypes::hart::FrameFault fault_ = ZAFHartTypes::hart::FrameFault::None;  // last one met
  platform::Milliseconds giveUpBus_{0};
  platform::Milliseconds replyUntil_{0};  // its first byte
  platform::Milliseconds replyEnd_{0};
  platform::Milliseconds lastByte_{0};
  platform::Subscription silence_;  // after the last byte is waited for
};

}  // namespace HartLinks
