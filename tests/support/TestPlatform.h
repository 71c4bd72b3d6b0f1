#pragma once

#include "platform/Platform.h"

namespace test_support {

// This thread's platform while the test runs, with a clock that only the test moves.
struct TestPlatform {
  void Advance(int milliseconds) {
    clock->Advance(platform::Milliseconds{milliseconds});
    platform.Loop().Pump();
  }

  platform::ManualClock* clock = new platform::ManualClock;  // owned by the platform
  platform::Platform platform{std::unique_ptr<platform::Clock>(clock)};
  platform::PlatformScope scope{platform};
};

}  // namespace test_support
