#include "platform/Clock.h"

#include <ctime>
#include <thread>

namespace platform {

namespace {

class SystemClock : public Clock {
 public:
  Milliseconds Now() override {
    return std::chrono::duration_cast<Milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
  }
#ifdef CLOCK_MONOTONIC_COARSE
  Milliseconds CoarseNow() override {
    std::timespec now{};
    clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
    return std::chrono::duration_cast<Milliseconds>(std::chrono::seconds(now.tv_sec) +
                                                    std::chrono::nanoseconds(now.tv_nsec));
  }
#endif
  void Sleep(Milliseconds duration) override {
    std::this_thread::sleep_for(duration);
  }
  std::chrono::system_clock::time_point WallTime() override {
    return std::chrono::system_clock::now();
  }
};

}  // namespace

Clock::~Clock() = default;

std::unique_ptr<Clock> MakeSystemClock() {
  return std::make_unique<SystemClock>();
}

ManualClock::ManualClock(Milliseconds start) : now_(start) {}

std::chrono::system_clock::time_point ManualClock::WallTime() {
  using namespace std::chrono;
  constexpr sys_days kStart = 2020y / January / 1;
  return kStart + now_;
}

}  // namespace platform
