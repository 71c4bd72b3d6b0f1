#include "gui/clsEventDispatcher.h"

#include "platform/Platform.h"

namespace ZAFHartLib {

void clsEventDispatcher::DoInitialize() {
  loop_ = &platform::Current().Loop();
}

void clsEventDispatcher::DoDispatch() {
  Loop().Pump();
}

void clsEventDispatcher::WaitStep(platform::Milliseconds atMost) {
  Loop().WaitStep(atMost);
}

platform::MessageLoop& clsEventDispatcher::Loop() {
  if (!loop_) DoInitialize();
  return *loop_;
}

}  // namespace ZAFHartLib
