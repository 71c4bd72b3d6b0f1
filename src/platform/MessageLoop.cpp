#include "platform/MessageLoop.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

namespace platform {

// One handler. Shared by its handle and, while it waits for its turn, by the queue.
class Subscription::State {
 public:
  std::weak_ptr<MessageLoop::Queue> queue;
  MessageLoop::Handler handler;
  Milliseconds due{};
  Milliseconds interval{};     // zero: runs once
  std::uint64_t sequence = 0;  // anew each time it is put into the queue
  bool active = true;          // will run (again)
  bool running = false;

  bool Repeats() const { return interval > Milliseconds{0}; }
};

namespace {

struct EarlierFirst {
  template <typename Pointer>
  bool operator()(const Pointer& a, const Pointer& b) const {
    return std::tie(a->due, a->sequence) < std::tie(b->due, b->sequence);
  }
};

// A repeating handler is due next at the first multiple of its interval that lies in the future:
// what was missed is in the tick that runs now.
Milliseconds NextTick(Milliseconds due, Milliseconds interval, Milliseconds now) {
  const auto missed = std::max<Milliseconds::rep>(0, (now - due) / interval);
  return due + (missed + 1) * interval;
}

}  // namespace

// The handlers that wait, in the order in which they are due. One that runs is not in here, so that
// nested pumps pass it over. Outlives the loop while a handler is on the stack.
class MessageLoop::Queue : public std::enable_shared_from_this<Queue> {
 public:
  using StatePointer = std::shared_ptr<Subscription::State>;

  explicit Queue(Clock& clock) : clock_(&clock) {}

  Subscription Add(Milliseconds delay, Milliseconds interval, Handler handler) {
    if (!handler) throw Failure(ErrorNumber::InvalidArgument, "MessageLoop", "There is no handler");
    auto state = std::make_shared<Subscription::State>();
    state->queue = weak_from_this();
    state->handler = std::move(handler);
    state->due = Now() + std::max(delay, Milliseconds{0});
    state->interval = interval;
    Insert(state);
    return Subscription(std::move(state));
  }

  void Remove(const StatePointer& state) {
    if (waiting_.erase(state) != 0) AnnounceNextDue();
  }

  // Runs what is due at this moment and was in the queue before.
  bool RunDue() {
    if (!IsOpen()) return false;
    const auto self = shared_from_this();
    const Milliseconds now = Now();
    const std::uint64_t end = nextSequence_;
    bool ran = false;
    while (const StatePointer state = FirstDue(now, end)) {
      Run(state, now);
      ran = true;
    }
    return ran;
  }

  std::optional<Milliseconds> NextDue() const {
    if (waiting_.empty()) return std::nullopt;
    return (*waiting_.begin())->due;
  }

  void SetHost(HostLoop* host) {
    host_ = host;
    announced_.reset();
    AnnounceNextDue();
  }

  // Lets the host run its events; false without a host.
  bool RunHostEvents(Milliseconds until) {
    if (!host_) return false;
    host_->RunHostEvents(until);
    return true;
  }

  void Close() {
    clock_ = nullptr;
    host_ = nullptr;
    decltype(waiting_) dropped;
    dropped.swap(waiting_);
    for (const StatePointer& state : dropped) {
      state->active = false;
      std::exchange(state->handler, nullptr);
    }
  }

  bool IsOpen() const { return clock_ != nullptr; }
  Milliseconds Now() const { return clock_->Now(); }
  Clock& GetClock() const { return *clock_; }
  void SetSink(FailureSink sink) { sink_ = std::move(sink); }

 private:
  void Insert(const StatePointer& state) {
    state->sequence = nextSequence_++;
    waiting_.insert(state);
    AnnounceNextDue();
  }

  StatePointer FirstDue(Milliseconds now, std::uint64_t end) const {
    for (const StatePointer& state : waiting_) {
      if (state->due > now) break;
      if (state->sequence < end) return state;
    }
    return nullptr;
  }

  void Run(const StatePointer& state, Milliseconds now) {
    waiting_.erase(state);
    state->active = state->Repeats();
    state->running = true;
    const OnReturn finish{[&] { Finish(state, now); }};
    AnnounceNextDue();
    try {
      state->handler();
    } catch (const Failure& failure) {
      const FailureSink sink = sink_;
      if (sink) IgnoreFailures([&] { sink(failure); });
    }
  }

  void Finish(const StatePointer& state, Milliseconds startedAt) {
    state->running = false;
    if (state->active && IsOpen()) {
      state->due = NextTick(state->due, state->interval, startedAt);
      Insert(state);
    } else {
      state->active = false;
      const Handler dropped = std::exchange(state->handler, nullptr);
    }
  }

  void AnnounceNextDue() {
    const auto next = NextDue();
    if (!host_ || next == announced_) return;
    announced_ = next;
    host_->OnNextDueChanged();
  }

  template <typename Action>
  struct OnReturn {
    Action action;
    ~OnReturn() { action(); }
  };
  template <typename Action>
  OnReturn(Action) -> OnReturn<Action>;

  Clock* clock_;  // none once the loop is gone
  HostLoop* host_ = nullptr;
  FailureSink sink_;
  std::set<StatePointer, EarlierFirst> waiting_;
  std::uint64_t nextSequence_ = 0;
  std::optional<Milliseconds> announced_;  // what the host was told last
};

Subscription::Subscription(std::shared_ptr<State> state) : state_(std::move(state)) {}

Subscription& Subscription::operator=(Subscription&& other) noexcept {
  if (this != &other) {
    Cancel();
    state_ = std::move(other.state_);
  }
  return *this;
}

Subscription::~Subscription() {
  Cancel();
}

void Subscription::Cancel() {
  const auto state = std::exchange(state_, nullptr);
  if (!state) return;
  state->active = false;
  if (state->running) return;  // its handler is dropped when it returns
  if (const auto queue = state->queue.lock()) queue->Remove(state);
  const MessageLoop::Handler dropped = std::exchange(state->handler, nullptr);
}

bool Subscription::IsActive() const {
  return state_ && state_->active;
}

HostLoop::~HostLoop() = default;

MessageLoop::MessageLoop(Clock& clock) : queue_(std::make_shared<Queue>(clock)) {}

MessageLoop::~MessageLoop() {
  queue_->Close();
}

Subscription MessageLoop::Post(Handler handler) {
  return queue_->Add(Milliseconds{0}, Milliseconds{0}, std::move(handler));
}

Subscription MessageLoop::StartTimer(Milliseconds interval, Handler handler) {
  interval = std::max(interval, Milliseconds{1});
  return queue_->Add(interval, interval, std::move(handler));
}

Subscription MessageLoop::StartOnce(Milliseconds delay, Handler handler) {
  return queue_->Add(delay, Milliseconds{0}, std::move(handler));
}

bool MessageLoop::Pump() {
  const auto queue = queue_;
  const bool ran = queue->RunDue();
  if (queue->IsOpen()) queue->RunHostEvents(queue->Now());
  return ran;
}

void MessageLoop::WaitStep(Milliseconds atMost) {
  const auto queue = queue_;
  const Milliseconds now = queue->Now();
  Milliseconds until = now + std::max(atMost, Milliseconds{0});
  if (const auto due = queue->NextDue()) until = std::max(now, std::min(until, *due));
  if (!queue->RunHostEvents(until) && until > now) queue->GetClock().Sleep(until - now);
  queue->RunDue();
}

std::optional<Milliseconds> MessageLoop::NextDue() const {
  return queue_->NextDue();
}

bool MessageLoop::RunDue() {
  return queue_->RunDue();
}

void MessageLoop::SetHostLoop(HostLoop* host) {
  queue_->SetHost(host);
}

void MessageLoop::SetFailureSink(FailureSink sink) {
  queue_->SetSink(std::move(sink));
}

}  // namespace platform
