#include "platform/Platform.h"

#include <atomic>

namespace platform {

namespace {

thread_local Platform* current = nullptr;
thread_local bool threadEnds = false;

struct ThreadPlatform {
  std::unique_ptr<Platform> platform;
  ~ThreadPlatform() {
    platform.reset();
    current = nullptr;
    threadEnds = true;
  }
};

std::unique_ptr<Platform> MakeDefault() {
  auto platform = std::make_unique<Platform>();
  platform->Locale() = UserLocale::FromEnvironment();
  return platform;
}

Platform& OwnPlatform() {
  // Global objects of the host may be destroyed after the thread's own ones and still ask.
  if (threadEnds) return *MakeDefault().release();
  thread_local ThreadPlatform own;
  if (!own.platform) own.platform = MakeDefault();
  return *own.platform;
}

}  // namespace

std::uintptr_t ApplicationInstance() {
  static const char instance = 0;
  return reinterpret_cast<std::uintptr_t>(&instance);
}

std::uint64_t ThreadId() {
  static std::atomic<std::uint64_t> last{0};
  thread_local const std::uint64_t id = ++last;
  return id;
}

Platform::Platform(std::unique_ptr<Clock> clock) : clock_(std::move(clock)), loop_(*clock_) {}

Platform::~Platform() {
  // The thread's state goes first, while everything it may use is there.
  decltype(slots_) slots;
  slots.swap(slots_);
}

Platform& Current() {
  if (!current) current = &OwnPlatform();
  return *current;
}

PlatformScope::PlatformScope(Platform& platform) : previous_(current) {
  current = &platform;
}

PlatformScope::~PlatformScope() {
  current = previous_;
}

}  // namespace platform
