#include "hartframe/browse/curses/EndSignals.h"

#include <array>
#include <csignal>

#include "hartframe/SignalWatch.h"
#include "hartframe/browse/curses/Curses.h"

namespace hartframe::browse::EndSignals {

namespace {

constexpr std::array kOrderly{SIGTERM, SIGHUP};
constexpr int kCrashes[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};

volatile std::sig_atomic_t hasCome = 0;
std::array<struct sigaction, kOrderly.size()> before;  // what these signals did without a screen

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
  for (std::size_t i = 0; i < kOrderly.size(); ++i) {
    sigaction(kOrderly[i], nullptr, &before[i]);
    Handle(kOrderly[i], &OnOrderlyEnd);
  }
  for (const int signal : kCrashes) Handle(signal, &TakeItsCourse);
  SignalWatch::SetLastResort(&RestoreTerminal);
}

void Remove() {
  SignalWatch::SetLastResort(nullptr);
  for (std::size_t i = 0; i < kOrderly.size(); ++i) sigaction(kOrderly[i], &before[i], nullptr);
  for (const int signal : kCrashes) Handle(signal, SIG_DFL);
}

bool HasCome() {
  return hasCome != 0;
}

}  // namespace hartframe::browse::EndSignals
