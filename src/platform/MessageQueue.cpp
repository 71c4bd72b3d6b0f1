#include "platform/MessageQueue.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace platform {
namespace {

constexpr Milliseconds kDescriptorInterval{10};

// A repeating handler is due next at the first multiple of its interval that lies in the future:
// what was missed is in the tick that runs now.
Milliseconds NextTick(Milliseconds due, Milliseconds interval, Milliseconds now) {
  const auto missed = std::max<Milliseconds::rep>(0, (now - due) / interval);
  return due + (missed + 1) * interval;
}

template <typename Action>
struct OnReturn {
  Action action;
  ~OnReturn() { action(); }
};
template <typename Action>
OnReturn(Action) -> OnReturn<Action>;

}  // namespace

bool MessageLoop::Queue::EarlierFirst::operator()(const StatePointer& a,
                                                  const StatePointer& b) const {
  return std::tie(a->due, a->sequence) < std::tie(b->due, b->sequence);
}

MessageLoop::Queue::StatePointer MessageLoop::Queue::MakeState(Handler handler) {
  if (!handler) throw Failure(ErrorNumber::InvalidArgument, "MessageLoop", "There is no handler");
  auto state = std::make_shared<Subscription::State>();
  state->queue = weak_from_this();
  state->handler = std::move(handler);
  return state;
}

Subscription MessageLoop::Queue::Add(Milliseconds delay, Milliseconds interval, Handler handler) {
  auto state = MakeState(std::move(handler));
  state->due = Now() + std::max(delay, Milliseconds{0});
  state->interval = interval;
  Insert(state);
  return Subscription(std::move(state));
}

Subscription MessageLoop::Queue::Watch(WatchedDescriptor watched, Handler handler) {
  auto state = MakeState(std::move(handler));
  state->watched = watched;
  watching_.push_back(state);
  AnnounceDescriptors();
  return Subscription(std::move(state));
}

void MessageLoop::Queue::Remove(const StatePointer& state) {
  if (state->watched) {
    if (std::erase(watching_, state) != 0) AnnounceDescriptors();
  } else if (waiting_.erase(state) != 0) {
    AnnounceNextDue();
  }
}

bool MessageLoop::Queue::RunDue() {
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

bool MessageLoop::Queue::RunReady(Milliseconds atMost) {
  const auto self = shared_from_this();
  std::vector<StatePointer> states;
  std::vector<WatchedDescriptor> watched;
  for (const StatePointer& state : watching_) {
    if (state->running) continue;
    states.push_back(state);
    watched.push_back(*state->watched);
  }
  if (states.empty()) return false;
  const std::vector<bool> ready = PollDescriptors(watched, atMost);
  bool ran = false;
  for (std::size_t i = 0; i < states.size() && IsOpen(); ++i) {
    if (!ready[i] || !states[i]->active || states[i]->running) continue;
    Run(states[i], Now());
    ran = true;
  }
  return ran;
}

void MessageLoop::Queue::Idle(Milliseconds atMost) {
  const bool blocks = clock_->SleepBlocks();
  const bool mayWait = std::any_of(watching_.begin(), watching_.end(),
                                   [](const StatePointer& state) { return !state->running; });
  if (mayWait && (RunReady(blocks ? atMost : Milliseconds{0}) || blocks)) return;
  if (atMost > Milliseconds{0} && IsOpen()) clock_->Sleep(atMost);
}

std::optional<Milliseconds> MessageLoop::Queue::NextDue() const {
  if (waiting_.empty()) return std::nullopt;
  return (*waiting_.begin())->due;
}

void MessageLoop::Queue::SetHost(HostLoop* host) {
  host_ = host;
  announced_.reset();
  AnnounceNextDue();
  AnnounceDescriptors();
}

bool MessageLoop::Queue::RunHostEvents(Milliseconds until) {
  if (!host_) return false;
  host_->RunHostEvents(until);
  return true;
}

void MessageLoop::Queue::Close() {
  clock_ = nullptr;
  host_ = nullptr;
  lookAtDescriptors_.Cancel();
  std::vector<StatePointer> dropped(waiting_.begin(), waiting_.end());
  dropped.insert(dropped.end(), watching_.begin(), watching_.end());
  waiting_.clear();
  watching_.clear();
  for (const StatePointer& state : dropped) {
    state->active = false;
    if (!state->running) std::exchange(state->handler, nullptr);
  }
}

void MessageLoop::Queue::Insert(const StatePointer& state) {
  state->sequence = nextSequence_++;
  waiting_.insert(state);
  AnnounceNextDue();
}

MessageLoop::Queue::StatePointer MessageLoop::Queue::FirstDue(Milliseconds now,
                                                              std::uint64_t end) const {
  for (const StatePointer& state : waiting_) {
    if (state->due > now) break;
    if (state->sequence < end) return state;
  }
  return nullptr;
}

void MessageLoop::Queue::Run(const StatePointer& state, Milliseconds now) {
  if (!state->watched) waiting_.erase(state);
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

void MessageLoop::Queue::Finish(const StatePointer& state, Milliseconds startedAt) {
  state->running = false;
  if (!state->active || !IsOpen()) {
    state->active = false;
    std::erase(watching_, state);
    const Handler dropped = std::exchange(state->handler, nullptr);
  } else if (!state->watched) {
    state->due = NextTick(state->due, state->interval, startedAt);
    Insert(state);
  }
}

void MessageLoop::Queue::AnnounceNextDue() {
  const auto next = NextDue();
  if (!host_ || next == announced_) return;
  announced_ = next;
  host_->OnNextDueChanged();
}

void MessageLoop::Queue::AnnounceDescriptors() {
  lookAtDescriptors_.Cancel();
  if (!host_) return;
  std::vector<WatchedDescriptor> watched;
  for (const StatePointer& state : watching_) watched.push_back(*state->watched);
  if (host_->OnDescriptorsChanged(watched) || watched.empty()) return;
  lookAtDescriptors_ =
      Add(kDescriptorInterval, kDescriptorInterval, [this] { RunReady(Milliseconds{0}); });
}

}  // namespace platform
