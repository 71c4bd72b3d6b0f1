#pragma once

#include <uv.h>

#include <algorithm>
#include <map>
#include <vector>

#include "platform/Platform.h"

using platform::Milliseconds;

inline platform::MessageLoop& Library() {
  return platform::Current().Loop();
}

inline Milliseconds TimeUntil(Milliseconds moment) {
  return std::max(Milliseconds{0}, moment - platform::Current().GetClock().Now());
}

// Has libuv's loop run what the library has due. uv_run must not be entered from one of its own
// callbacks; when the library waits there, only its descriptors are looked at meanwhile.
class UvHost : public platform::HostLoop {
 public:
  explicit UvHost(uv_loop_t* loop) : loop_(loop) {
    uv_timer_init(loop_, &due_);
    uv_timer_init(loop_, &end_);
    Library().SetHostLoop(this);
  }
  ~UvHost() override {
    Library().SetHostLoop(nullptr);
    Watch({});
    for (uv_timer_t* timer : {&due_, &end_}) uv_close(reinterpret_cast<uv_handle_t*>(timer), {});
    uv_run(loop_, UV_RUN_DEFAULT);  // closing takes a round
  }

  void Run(uv_run_mode mode) {
    isRunning_ = true;
    uv_run(loop_, mode);
    isRunning_ = false;
  }

  void OnNextDueChanged() override {
    const auto next = Library().NextDue();
    if (!next) {
      uv_timer_stop(&due_);
      return;
    }
    const auto ring = [](uv_timer_t*) { Library().RunDue(); };
    Start(due_, ring, TimeUntil(*next));
  }

  void RunHostEvents(Milliseconds until) override {
    if (isRunning_) {
      platform::PollDescriptors(watched_, TimeUntil(until));
      Library().RunReady();
      return;
    }
    Start(
        end_, [](uv_timer_t*) {}, TimeUntil(until));
    Run(UV_RUN_ONCE);
    uv_timer_stop(&end_);
  }

  bool OnDescriptorsChanged(std::span<const platform::WatchedDescriptor> watched) override {
    Watch({watched.begin(), watched.end()});
    return true;
  }

 private:
  void Start(uv_timer_t& timer, uv_timer_cb ring, Milliseconds after) {
    uv_update_time(loop_);
    uv_timer_start(&timer, ring, static_cast<std::uint64_t>(after.count()), 0);
  }

  void Watch(std::vector<platform::WatchedDescriptor> watched) {
    for (uv_poll_t* poll : polls_) {
      uv_close(reinterpret_cast<uv_handle_t*>(poll),
               [](uv_handle_t* handle) { delete reinterpret_cast<uv_poll_t*>(handle); });
    }
    polls_.clear();
    std::map<int, int> events;  // libuv takes a descriptor once
    for (const auto& [descriptor, readiness] : watched)
      events[descriptor] |= readiness == platform::Readiness::Readable ? UV_READABLE : UV_WRITABLE;
    for (const auto& [descriptor, wanted] : events) {
      polls_.push_back(new uv_poll_t);
      uv_poll_init(loop_, polls_.back(), descriptor);
      uv_poll_start(polls_.back(), wanted, [](uv_poll_t*, int, int) { Library().RunReady(); });
    }
    watched_ = std::move(watched);
  }

  uv_loop_t* loop_;
  uv_timer_t due_{};
  uv_timer_t end_{};
  std::vector<uv_poll_t*> polls_;
  std::vector<platform::WatchedDescriptor> watched_;
  bool isRunning_ = false;
};
