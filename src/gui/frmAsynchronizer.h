#pragma once

#include <deque>
#include <memory>

#include "interfaces/ILink.h"

namespace ZAFHartLib {

// What the communication wrapper offers its asynchroniser.
class IExchangeCompletion {
 public:
  virtual ~IExchangeCompletion() = default;
  // Processes the reply of a finished exchange and tells the kernel.
  virtual void CompleteExchange(const std::shared_ptr<ZAFHartTypes::Exchange>& exchange) = 0;
};

// Defers the completion of asynchronous exchanges to a tick of Timer1, so that it never runs inside
// the event of a link. It stands for a window that must have been shown to be of use: on this
// platform a message loop that takes timers.
class frmAsynchronizer {
 public:
  using Queue = std::deque<std::shared_ptr<ZAFHartTypes::Exchange>>;
  // Interval of Timer1.
  static constexpr int kTimerInterval = 10;  // ms

  // Not shown, with an empty queue and the timer off.
  frmAsynchronizer();
  ~frmAsynchronizer();
  frmAsynchronizer(const frmAsynchronizer&) = delete;
  frmAsynchronizer& operator=(const frmAsynchronizer&) = delete;

  // Raises Unexpected when it cannot be shown.
  void Show();
  bool IsVisible() const;
  // Whether Show succeeds; it does at first. One that cannot be shown any more is hidden.
  void SetCanBeShown(bool canBeShown);

  // Finished exchanges, first in first out.
  Queue& ExchangeQueue();
  // The wrapper that completes them; not owned. Without one they wait.
  void SetCommWrapper(std::weak_ptr<IExchangeCompletion> wrapper);
  // Completes one exchange per tick, with failures ignored, until the queue is empty.
  void EnableTimer();
  bool TimerEnabled() const;

 private:
  // Shared with the tick under way: a completion may end the wrapper and this object with it.
  struct Window;
  static void OnTimer(const std::shared_ptr<Window>& window);

  std::shared_ptr<Window> window_;
};

}  // namespace ZAFHartLib
