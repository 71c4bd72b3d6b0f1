#include "platform/WakePipe.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "platform/Failure.h"

namespace platform {

WakePipe::WakePipe() {
  if (pipe(ends_) != 0) {
    throw Failure(ErrorNumber::DeviceIo, "platform.WakePipe",
                  "Cannot open a pipe: " + std::generic_category().message(errno));
  }
  for (const int end : ends_) fcntl(end, F_SETFD, FD_CLOEXEC);
}

WakePipe::~WakePipe() {
  for (const int end : ends_) close(end);
}

void WakePipe::Wake() {
  const char byte = 0;
  while (write(ends_[1], &byte, 1) < 0 && errno == EINTR) {
  }
}

}  // namespace platform
