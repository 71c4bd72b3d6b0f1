#include "gui/frmAsynchronizer.h"

#include <utility>

#include "platform/Platform.h"
#include "types/Failure.h"

namespace ZAFHartLib {

using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Failure;
using ZAFHartTypes::IgnoreFailures;

struct frmAsynchronizer::Window {
  Queue queue;
  std::weak_ptr<IExchangeCompletion> wrapper;
  platform::Subscription timer1;
  bool visible = false;
  bool canBeShown = true;
};

frmAsynchronizer::frmAsynchronizer() : window_(std::make_shared<Window>()) {}

frmAsynchronizer::~frmAsynchronizer() {
  window_->timer1.Cancel();
}

void frmAsynchronizer::Show() {
  if (!window_->canBeShown) {
    throw Failure(ErrorNumber::Unexpected, "frmAsynchronizer.Show",
                  "The asynchroniser cannot be shown: there is no message loop for its timer.");
  }
  window_->visible = true;
}

bool frmAsynchronizer::IsVisible() const {
  return window_->visible;
}

void frmAsynchronizer::SetCanBeShown(bool canBeShown) {
  window_->canBeShown = canBeShown;
  if (!canBeShown) window_->visible = false;
}

frmAsynchronizer::Queue& frmAsynchronizer::ExchangeQueue() {
  return window_->queue;
}

void frmAsynchronizer::SetCommWrapper(std::weak_ptr<IExchangeCompletion> wrapper) {
  window_->wrapper = std::move(wrapper);
}

void frmAsynchronizer::EnableTimer() {
  if (TimerEnabled()) return;
  window_->timer1 = platform::Current().Loop().StartTimer(platform::Milliseconds{kTimerInterval},
                                                          [window = std::weak_ptr(window_)] {
                                                            if (const auto living = window.lock())
                                                              OnTimer(living);
                                                          });
}

bool frmAsynchronizer::TimerEnabled() const {
  return window_->timer1.IsActive();
}

void frmAsynchronizer::OnTimer(const std::shared_ptr<Window>& window) {
  const auto wrapper = window->wrapper.lock();
  if (wrapper && !window->queue.empty()) {
    const auto exchange = std::move(window->queue.front());
    window->queue.pop_front();
    IgnoreFailures([&] { wrapper->CompleteExchange(exchange); });
  }
  if (window->queue.empty()) window->timer1.Cancel();
}

}  // namespace ZAFHartLib
