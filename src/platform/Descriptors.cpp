#include "platform/Descriptors.h"

#include <poll.h>

#include <algorithm>
#include <limits>

namespace platform {

std::vector<bool> PollDescriptors(std::span<const WatchedDescriptor> watched, Milliseconds atMost) {
  std::vector<pollfd> polled;
  polled.reserve(watched.size());
  for (const WatchedDescriptor& watch : watched) {
    const short events = watch.readiness == Readiness::Readable ? POLLIN : POLLOUT;
    polled.push_back({watch.descriptor, events, 0});
  }
  const auto longest = static_cast<Milliseconds::rep>(std::numeric_limits<int>::max());
  const auto timeout = static_cast<int>(std::clamp<Milliseconds::rep>(atMost.count(), 0, longest));
  std::vector<bool> ready(watched.size(), false);
  // A signal ends the wait with nothing ready, as the end of the time does.
  if (poll(polled.data(), polled.size(), timeout) <= 0) return ready;
  for (std::size_t i = 0; i < polled.size(); ++i) ready[i] = polled[i].revents != 0;
  return ready;
}

}  // namespace platform
