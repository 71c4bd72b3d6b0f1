#include "hartframe/SignalWatch.h"

#include <csignal>

#include "platform/Platform.h"

namespace hartframe {

namespace {

volatile std::sig_atomic_t interrupted = 0;
void (*volatile lastResort)() = nullptr;

// The second one ends the process.
void OnSignal(int signal) {
  if (interrupted == 0) {
    interrupted = 1;
    return;
  }
  if (lastResort) lastResort();
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

// Whoever starts a program so that it outlives the terminal (nohup) has hanging up ignored.
bool IsIgnored(int signal) {
  struct sigaction action {};
  sigaction(signal, nullptr, &action);
  return action.sa_handler == SIG_IGN;
}

void Install(void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  // Without SA_RESTART: a read from the terminal ends with it.
  sigemptyset(&action.sa_mask);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    if (signal != SIGHUP || !IsIgnored(signal)) sigaction(signal, &action, nullptr);
  }
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

void SignalWatch::Interrupt() {
  interrupted = 1;
  Check();
}

void SignalWatch::Resume() {
  interrupted = 0;
  handled_ = false;
}

void SignalWatch::SetLastResort(void (*restore)()) {
  lastResort = restore;
}

void SignalWatch::Check() {
  if (!Interrupted() || (handled_ && !repeats_)) return;
  handled_ = true;
  if (handler_) handler_();
}

}  // namespace hartframe
