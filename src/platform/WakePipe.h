#pragma once

#include "platform/Export.h"

namespace platform {

// Lets another thread wake a message loop: it calls Wake(), and the loop, which watches
// Descriptor(), finds it readable from then on.
class ZAF_API WakePipe {
 public:
  // Raises DeviceIo when the system has no descriptors left.
  WakePipe();
  ~WakePipe();
  WakePipe(const WakePipe&) = delete;
  WakePipe& operator=(const WakePipe&) = delete;

  int Descriptor() const { return ends_[0]; }
  void Wake();

 private:
  int ends_[2];
};

}  // namespace platform
