#pragma once

#include "interfaces/IDDErrorHandler.h"
#include "platform/Object.h"
#include "types/LateBound.h"

namespace ZAFHartLib {

// Accepts every error silently. The kernel installs it while it evaluates what must not reach the
// user, and asks afterwards whether something critical came up.
class CEmptyErrorHandler : public platform::Object,
                           public ZAFHartTypes::IDDErrorHandler,
                           public ZAFHartTypes::ILateBound {
 public:
  // A cyclic evaluation was reported.
  bool CriticalErrors() const { return criticalErrors_; }
  void SetCriticalErrors(bool seen) { criticalErrors_ = seen; }
  // Kept for the kernel; no effect here.
  bool RaiseCriticalErrors() const { return raiseCriticalErrors_; }
  void SetRaiseCriticalErrors(bool raise) { raiseCriticalErrors_ = raise; }

  // Each answers 1: handled.
  std::int32_t ObjectError(const std::shared_ptr<ZAFHartTypes::DDObject>& object,
                           ZAFHartTypes::ItemIndex index) override;
  std::int32_t ResponseCodeError(const ZAFHartTypes::CommandStatus& status,
                                 const std::shared_ptr<ZAFHartTypes::CommandRef>& command) override;
  std::int32_t EvaluationError(const std::string& message) override;

  // The properties "CriticalErrors" and "RaiseCriticalErrors". Raises MemberNotFound for other
  // names and InvalidProcedureCall for more than one argument.
  ZAFHartTypes::Variant Invoke(std::string_view name,
                               std::span<const ZAFHartTypes::Variant> arguments) override;

 private:
  bool criticalErrors_ = false;
  bool raiseCriticalErrors_ = false;
};

}  // namespace ZAFHartLib
