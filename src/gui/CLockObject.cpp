#include "gui/CLockObject.h"

#include <utility>

#include "types/Failure.h"

namespace ZAFHartLib {

using ZAFHartTypes::IDDDTMGUI;
using ZAFHartTypes::IgnoreFailures;

CLockObject::~CLockObject() {
  Release();
}

void CLockObject::SetLock(const std::shared_ptr<IDDDTMGUI>& newGUI) {
  Release();
  gui_ = newGUI;
  if (newGUI) IgnoreFailures([&] { lockId_ = newGUI->SetUILock(); });
}

void CLockObject::Release() {
  const auto gui = std::exchange(gui_, {}).lock();
  const std::int32_t lockId = std::exchange(lockId_, 0);
  if (gui && lockId != 0) IgnoreFailures([&] { gui->ReleaseUILock(lockId); });
}

}  // namespace ZAFHartLib
