#include "hartframe/browse/curses/EndSignals.h"

#include <csignal>

#include "hartframe/SignalWatch.h"
#include "hartframe/browse/curses/Curses.h"

namespace hartframe::browse::EndSignals {

namespace {

constexpr int kOrderly[] = {SIGTERM, SIGHUP};
constexpr int kCrashes[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};

volatile std::sig_atomic_t hasCome = 0;

void RestoreTerminal() {
  endwin();
}

void TakeItsCourse(int signal) {
  RestoreTerminal();
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

void OnOrderlyEnd(int signal) {
  if (hasCome != 0) TakeItsCourse(signal);
  hasCome = 1;
}

void Handle(int signal, void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  sigemptyset(&action.sa_mask);
  sigaction(signal, &action, nullptr);
}

}  // namespace

void Install() {
  hasCome = 0;
  for (const int signal : kOrderly) Handle(signal, &OnOrderlyEnd);
  for (const int signal : kCrashes) Handle(signal, &TakeItsCourse);
  SignalWatch::SetLastResort(&RestoreTerminal);
}

void Remove() {
  SignalWatch::SetLastResort(nullptr);
  for (const int signal : kOrderly) Handle(signal, SIG_DFL);
  for (const int signal : kCrashes) Handle(signal, SIG_DFL);
}

bool HasCome() {
  return hasCome != 0;
}

}  // namespace hartframe::browse::EndSignals
