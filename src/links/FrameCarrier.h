#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "hart/LinkFrame.h"
#include "platform/Export.h"
#include "platform/MessageLoop.h"

namespace HartLinks {

// What a request came to.
struct FrameEnd {
  std::optional<ZAFHartTypes::hart::LinkFrame> reply;  // nothing: no good one came
  // What kept it from a reply, for users: "Cannot open /dev/ttyUSB0: …". "" with a reply, and when
  // the device simply did not answer.
  std::string error;
};

// One request on its way over a carrier. Whoever asks keeps it; destroying it takes its handler
// back.
class ZAF_API FrameRequest {
 public:
  using Done = std::function<void(const FrameEnd&)>;  // is called once at most

  // `owner` is who takes turns with the others on the carrier.
  FrameRequest(const void* owner, ZAFHartTypes::hart::LinkFrame frame, Done done);

  const void* Owner() const { return owner_; }
  const ZAFHartTypes::hart::LinkFrame& Frame() const { return frame_; }

  // For carriers, once: calls `done` in an event of its own, so that it may wait for another
  // request on the same carrier. Takes the request's end back when it is cancelled before.
  void End(FrameEnd end);
  // For carriers: no end will be told any more.
  void TakeBack() { ending_.Cancel(); }

 private:
  const void* owner_;
  ZAFHartTypes::hart::LinkFrame frame_;
  Done done_;
  platform::Subscription ending_;
};

// Brings requests to devices and their replies back: a modem's line, a HART-IP session. Shared by
// the links of a thread; everything happens in the thread's message loop and nothing blocks it.
class ZAF_API FrameCarrier {
 public:
  virtual ~FrameCarrier() = default;
  // The master bit that requests must have.
  virtual bool IsPrimaryMaster() const = 0;
  // Queues the request; its end is told once, unless it is cancelled. Retries of the way are done
  // by then; a reply with communication error flags is handed over like any other.
  virtual void Send(const std::shared_ptr<FrameRequest>& request) = 0;
  // The request's end will not be told. One that is none of the carrier's is left alone.
  virtual void Cancel(const std::shared_ptr<FrameRequest>& request) = 0;
};

}  // namespace HartLinks
