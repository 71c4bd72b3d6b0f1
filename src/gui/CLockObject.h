#pragma once

#include <cstdint>
#include <memory>

#include "interfaces/IDDDTMGUI.h"

namespace ZAFHartLib {

// Holds a UI lock of one GUI manager for as long as it lives. The manager itself is held weakly:
// managers lock one another, which would form a circle.
class CLockObject {
 public:
  CLockObject() = default;
  ~CLockObject();
  CLockObject(const CLockObject&) = delete;
  CLockObject& operator=(const CLockObject&) = delete;

  // Takes a lock of `newGUI` with failures ignored, and lets go of the one held before; nothing
  // just lets go.
  void SetLock(const std::shared_ptr<ZAFHartTypes::IDDDTMGUI>& newGUI);

 private:
  void Release();

  std::weak_ptr<ZAFHartTypes::IDDDTMGUI> gui_;
  std::int32_t lockId_ = 0;  // 0: none
};

}  // namespace ZAFHartLib
