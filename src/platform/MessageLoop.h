#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "platform/Clock.h"
#include "platform/Descriptors.h"
#include "platform/Export.h"
#include "platform/Failure.h"

namespace platform {

// Handle of a timer, of a posted event or of a watched descriptor. Destroying or cancelling it
// takes the handler back; a handler may cancel itself while it runs. Outliving the loop is
// harmless.
class ZAF_API Subscription {
 public:
  class State;
  Subscription() = default;
  explicit Subscription(std::shared_ptr<State> state);
  Subscription(Subscription&&) noexcept = default;
  Subscription& operator=(Subscription&& other) noexcept;
  ~Subscription();
  // Never raises; a second call does nothing.
  void Cancel();
  // The handler is to run, or to run again: not after Cancel, once a handler that runs once has
  // started, nor after the loop has gone.
  bool IsActive() const;

 private:
  std::shared_ptr<State> state_;
};

// What a host with a loop of its own (Qt, GLib, libuv) supplies. Both calls come on the loop's
// thread.
class ZAF_API HostLoop {
 public:
  virtual ~HostLoop();
  // NextDue() has changed: re-arm the host's timer, then call RunDue() when it fires. Must not
  // throw, nor run handlers.
  virtual void OnNextDueChanged() = 0;
  // Runs the host's events until `until` (Clock::Now() time) at the latest; may return earlier.
  virtual void RunHostEvents(Milliseconds until) = 0;
  // The descriptors to watch from now on: call RunReady() when one of them is ready. False (the
  // default): the host does not watch them, and the loop looks at them every 10 ms by a timer.
  virtual bool OnDescriptorsChanged(std::span<const WatchedDescriptor> watched);
};

// Posted events, timers and watched file descriptors of one thread. Everything the library does in
// the background runs from here. A handler that is on the stack is not entered again: its ticks
// coalesce into one. A Failure that leaves a handler goes to the failure sink, never into the
// operation that waits.
class ZAF_API MessageLoop {
 public:
  using Handler = std::function<void()>;
  using FailureSink = std::function<void(const Failure&)>;

  // `clock` has to outlive the loop. What is left when the loop goes is dropped without being run.
  explicit MessageLoop(Clock& clock);
  ~MessageLoop();
  MessageLoop(const MessageLoop&) = delete;
  MessageLoop& operator=(const MessageLoop&) = delete;

  // The calls that take a handler raise InvalidArgument for an empty one.
  // Runs `handler` once at the next pump, in the order of posting.
  [[nodiscard]] Subscription Post(Handler handler);
  // Runs `handler` every `interval` (at least 1 ms), first after one interval. A late tick stands
  // for all that were missed.
  [[nodiscard]] Subscription StartTimer(Milliseconds interval, Handler handler);
  // Runs `handler` once, after `delay`.
  [[nodiscard]] Subscription StartOnce(Milliseconds delay, Handler handler);
  // Runs `handler` whenever the descriptor is ready, as long as it is: the handler has to take what
  // came or to cancel. Cancel before the descriptor is closed.
  [[nodiscard]] Subscription Watch(WatchedDescriptor watched, Handler handler);

  // Runs what was due or ready when it was called (not what the handlers add). With a host loop,
  // lets the host run its pending events as well. True when a handler ran.
  bool Pump();
  // A step of a nested wait: sleeps until something is due or ready or a host event ends the sleep,
  // at most `atMost`, then pumps.
  void WaitStep(Milliseconds atMost);

  // For a host with its own loop: when the next handler is due (Clock::Now() time; a moment in the
  // past when one is waiting), nothing when there is none.
  std::optional<Milliseconds> NextDue() const;
  // Runs what is due now, without the host's events; true when a handler ran.
  bool RunDue();
  // Runs the handlers of the descriptors that are ready now; true when there was one.
  bool RunReady();
  // Not owned; nullptr takes it back, before the host goes. The host is told of what is due and
  // watched already.
  void SetHostLoop(HostLoop* host);

  // Where a Failure that leaves a handler goes; by default it is dropped.
  void SetFailureSink(FailureSink sink);

 private:
  friend class Subscription;
  class Queue;
  std::shared_ptr<Queue> queue_;
};

}  // namespace platform
