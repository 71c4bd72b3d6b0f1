#pragma once

#include <set>
#include <vector>

#include "platform/MessageLoop.h"

// What waits in a message loop. Internal to MessageLoop.
namespace platform {

// One handler. Shared by its handle and, while it waits for its turn, by the queue.
class Subscription::State {
 public:
  std::weak_ptr<MessageLoop::Queue> queue;
  MessageLoop::Handler handler;
  Milliseconds due{};
  Milliseconds interval{};  // zero: runs once
  std::optional<WatchedDescriptor> watched;
  std::uint64_t sequence = 0;  // anew each time it is put into the queue
  bool active = true;          // will run (again)
  bool running = false;

  bool Repeats() const { return watched || interval > Milliseconds{0}; }
};

// The handlers that wait: those for a moment in the order in which they are due, and those for a
// descriptor. A timed one that runs is not in here, so that nested pumps pass it over. Outlives the
// loop while a handler is on the stack.
class MessageLoop::Queue : public std::enable_shared_from_this<Queue> {
 public:
  using StatePointer = std::shared_ptr<Subscription::State>;

  explicit Queue(Clock& clock) : clock_(&clock) {}

  Subscription Add(Milliseconds delay, Milliseconds interval, Handler handler);
  Subscription Watch(WatchedDescriptor watched, Handler handler);
  void Remove(const StatePointer& state);

  // Runs what is due at this moment and was in the queue before.
  bool RunDue();
  // Waits for a watched descriptor, at most `atMost`, and runs the handlers of those that are
  // ready.
  bool RunReady(Milliseconds atMost);
  // Sleeps, at most `atMost`; a descriptor that is ready ends it and has its handler run.
  void Idle(Milliseconds atMost);
  std::optional<Milliseconds> NextDue() const;

  void SetHost(HostLoop* host);
  // Lets the host run its events; false without a host.
  bool RunHostEvents(Milliseconds until);
  void Close();

  bool IsOpen() const { return clock_ != nullptr; }
  Milliseconds Now() const { return clock_->Now(); }
  void SetSink(FailureSink sink) { sink_ = std::move(sink); }

 private:
  struct EarlierFirst {
    bool operator()(const StatePointer& a, const StatePointer& b) const;
  };

  StatePointer MakeState(Handler handler);
  void Insert(const StatePointer& state);
  StatePointer FirstDue(Milliseconds now, std::uint64_t end) const;
  void Run(const StatePointer& state, Milliseconds now);
  void Finish(const StatePointer& state, Milliseconds startedAt);
  void AnnounceNextDue();
  void AnnounceDescriptors();

  Clock* clock_;  // none once the loop is gone
  HostLoop* host_ = nullptr;
  FailureSink sink_;
  std::set<StatePointer, EarlierFirst> waiting_;
  std::vector<StatePointer> watching_;
  Subscription lookAtDescriptors_;  // in place of a host that does not watch them
  std::uint64_t nextSequence_ = 0;
  std::optional<Milliseconds> announced_;  // what the host was told last
};

}  // namespace platform
