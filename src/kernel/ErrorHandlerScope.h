#pragma once

#include <memory>

#include "interfaces/IDDDTMGUI.h"
#include "trace/CEmptyErrorHandler.h"
#include "types/Failure.h"

namespace ZAFHartLib {

// Puts an error handler that keeps every error from the user in the place of the GUI manager's
// until the scope ends.
class ErrorHandlerScope {
 public:
  explicit ErrorHandlerScope(std::shared_ptr<ZAFHartTypes::IDDDTMGUI> gui)
      : gui_(std::move(gui)),
        saved_(gui_->ErrorHandler()),
        quiet_(std::make_shared<CEmptyErrorHandler>()) {
    quiet_->SetRaiseCriticalErrors(true);
    gui_->SetErrorHandler(quiet_);
  }
  ~ErrorHandlerScope() { gui_->SetErrorHandler(saved_); }
  ErrorHandlerScope(const ErrorHandlerScope&) = delete;
  ErrorHandlerScope& operator=(const ErrorHandlerScope&) = delete;

  // A cyclic evaluation was reported meanwhile.
  bool SawCriticalError() const { return quiet_->CriticalErrors(); }
  // Tells the saved handler so, when it can be told.
  void PassCriticalErrorOn() const {
    const auto saved = std::dynamic_pointer_cast<ZAFHartTypes::ILateBound>(saved_);
    if (!saved) return;
    ZAFHartTypes::IgnoreFailures([&] {
      const ZAFHartTypes::Variant arguments[] = {true};
      saved->Invoke("CriticalErrors", arguments);
    });
  }

 private:
  std::shared_ptr<ZAFHartTypes::IDDDTMGUI> gui_;
  std::shared_ptr<ZAFHartTypes::IDDErrorHandler> saved_;
  std::shared_ptr<CEmptyErrorHandler> quiet_;
};

}  // namespace ZAFHartLib
