#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/Clock.h"
#include "platform/Export.h"

namespace platform {

enum class Readiness : std::uint8_t { Readable, Writable };

// A file descriptor (of a socket, a serial port, a pipe) and what is waited for on it. Not owned.
struct WatchedDescriptor {
  int descriptor = -1;
  Readiness readiness = Readiness::Readable;
  friend bool operator==(const WatchedDescriptor&, const WatchedDescriptor&) = default;
};

// Blocks until a descriptor is ready, at most `atMost`, and tells for each whether it is. One that
// was hung up, is broken or closed counts as ready: whoever uses it finds out.
ZAF_API std::vector<bool> PollDescriptors(std::span<const WatchedDescriptor> watched,
                                          Milliseconds atMost);

}  // namespace platform
