#include "hartframe/methods/MethodEnd.h"

#include "hartframe/methods/MethodTexts.h"
#include "interfaces/Codes.h"

namespace hartframe {

AbortCause CauseOfAbort(const MethodWatch& watch, const ErrorWatch& errors, bool isCancelled) {
  constexpr auto kNoDevice = static_cast<std::int32_t>(ZAFHartTypes::CommResult::NoDevice);
  if (isCancelled) return AbortCause::User;
  if (!errors.EvaluationErrorText().empty()) return AbortCause::Failure;
  if (watch.LastResult() == kNoDevice) return AbortCause::NoDevice;
  return watch.AbortedItself() ? AbortCause::Method : AbortCause::Status;
}

std::string FailureText(const ErrorWatch& errors) {
  const std::string& error = errors.EvaluationErrorText();
  return error.substr(error.rfind('\n') + 1);
}

const char* ReasonText(AbortCause cause) {
  switch (cause) {
    case AbortCause::User:
      return texts::kReasonUser;
    case AbortCause::NoDevice:
      return texts::kReasonNoDevice;
    case AbortCause::Status:
      return texts::kReasonStatus;
    default:
      return texts::kReasonMethod;
  }
}

}  // namespace hartframe
