#include "platform/MessageLoop.h"

#include <algorithm>
#include <utility>

#include "platform/MessageQueue.h"

namespace platform {

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
  if (const auto queue = state->queue.lock()) queue->Remove(state);
  if (state->running) return;  // its handler is dropped when it returns
  const MessageLoop::Handler dropped = std::exchange(state->handler, nullptr);
}

bool Subscription::IsActive() const {
  return state_ && state_->active;
}

HostLoop::~HostLoop() = default;

bool HostLoop::OnDescriptorsChanged(std::span<const WatchedDescriptor> /*watched*/) {
  return false;
}

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
  bool ran = queue->RunDue();
  if (queue->IsOpen()) ran = queue->RunReady(Milliseconds{0}) || ran;
  if (queue->IsOpen()) queue->RunHostEvents(queue->Now());
  return ran;
}

void MessageLoop::WaitStep(Milliseconds atMost) {
  const auto queue = queue_;
  const Milliseconds now = queue->Now();
  Milliseconds until = now + std::max(atMost, Milliseconds{0});
  if (const auto due = queue->NextDue()) until = std::max(now, std::min(until, *due));
  if (!queue->RunHostEvents(until)) queue->Idle(until - now);
  queue->RunDue();
}

Subscription MessageLoop::Watch(WatchedDescriptor watched, Handler handler) {
  return queue_->Watch(watched, std::move(handler));
}

std::optional<Milliseconds> MessageLoop::NextDue() const {
  return queue_->NextDue();
}

bool MessageLoop::RunDue() {
  return queue_->RunDue();
}

bool MessageLoop::RunReady() {
  return queue_->RunReady(Milliseconds{0});
}

void MessageLoop::SetHostLoop(HostLoop* host) {
  queue_->SetHost(host);
}

void MessageLoop::SetFailureSink(FailureSink sink) {
  queue_->SetSink(std::move(sink));
}

}  // namespace platform
