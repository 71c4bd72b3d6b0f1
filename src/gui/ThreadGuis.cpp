#include "gui/ThreadGuis.h"

#include <algorithm>

#include "gui/CDDDTMGUI.h"
#include "platform/Platform.h"

namespace ZAFHartLib {

std::shared_ptr<ThreadGuis> ThreadGuis::OfThisThread() {
  return platform::Current().PerThread<ThreadGuis>().shared_from_this();
}

void ThreadGuis::Add(CDDDTMGUI& gui) {
  if (std::ranges::find(guis_, &gui) == guis_.end()) guis_.push_back(&gui);
}

void ThreadGuis::Remove(CDDDTMGUI& gui) {
  std::erase(guis_, &gui);
}

std::vector<std::weak_ptr<CDDDTMGUI>> ThreadGuis::Others(const CDDDTMGUI& self) const {
  std::vector<std::weak_ptr<CDDDTMGUI>> others;
  for (CDDDTMGUI* gui : guis_) {
    if (gui != &self) others.push_back(gui->weak_from_this());
  }
  return others;
}

}  // namespace ZAFHartLib
