#pragma once

#include "platform/MessageLoop.h"

namespace ZAFHartLib {

// Keeps the thread responsive while a synchronous exchange is waited for: lets the pending events
// of the thread's message loop run. Lives for one exchange.
class clsEventDispatcher {
 public:
  // Takes the message loop of the calling thread.
  void DoInitialize();
  // Runs what is pending; initialises first if need be.
  void DoDispatch();
  // One step of a wait: until something is due, at most `atMost`, then DoDispatch.
  void WaitStep(platform::Milliseconds atMost);

 private:
  platform::MessageLoop& Loop();

  platform::MessageLoop* loop_ = nullptr;  // nullptr: not initialised
};

}  // namespace ZAFHartLib
