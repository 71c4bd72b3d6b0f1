#pragma once

#include <functional>

#include "platform/MessageLoop.h"

namespace hartframe {

// Ctrl-C, and as well the signals that ask a program to end (SIGTERM, SIGHUP): the first one ends
// the running operation in an orderly way, a second one the process. One object at a time.
class SignalWatch {
 public:
  SignalWatch();
  ~SignalWatch();
  SignalWatch(const SignalWatch&) = delete;
  SignalWatch& operator=(const SignalWatch&) = delete;

  // What is done about it, on the thread of the message loop: once, or again and again until
  // Resume, for what ends something that may only be about to begin.
  void SetHandler(std::function<void()> handler, bool repeats = false) {
    handler_ = std::move(handler);
    repeats_ = repeats;
  }
  bool Interrupted() const;
  // As if a Ctrl-C had come.
  void Interrupt();
  // What was interrupted has ended, and the next Ctrl-C is the first one again.
  void Resume();
  // What is done before a second Ctrl-C ends the process; safe in a signal handler.
  static void SetLastResort(void (*restore)());
  // Runs the handler when a Ctrl-C has come since the last time. A timer does so too; this is for
  // those who work long without letting the message loop run.
  void Check();

 private:
  std::function<void()> handler_;
  bool repeats_ = false;
  bool handled_ = false;
  platform::Subscription timer_;
};

}  // namespace hartframe
