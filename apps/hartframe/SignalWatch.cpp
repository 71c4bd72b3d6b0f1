#include "hartframe/SignalWatch.h"

#include <csignal>

#include "platform/Platform.h"

namespace hartframe {

namespace {

volatile std::sig_atomic_t interrupted = 0;

void OnSignal(int) {
  interrupted = 1;
}

void Install(void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  // The next one ends the process; a read from the terminal ends with this one.
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  sigemptyset(&action.sa_mask);
  sigaction(SIGINT, &action, nullptr);
}

}  // namespace

SignalWatch::SignalWatch() {
  interrupted = 0;
  Install(&OnSignal);
  timer_ = platform::Current().Loop().StartTimer(platform::Milliseconds(20), [this] { Check(); });
}

SignalWatch::~SignalWatch() {
  Install(SIG_DFL);
}

bool SignalWatch::Interrupted() const {
  return interrupted != 0;
}

void SignalWatch::Check() {
  if (!Interrupted() || handled_) return;
  handled_ = true;
  if (handler_) handler_();
}

}  // namespace hartframe
