#include "trace/CEmptyErrorHandler.h"

#include "types/Failure.h"
#include "types/TextKey.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::CommandRef;
using ZAFHartTypes::CommandStatus;
using ZAFHartTypes::DDObject;
using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Failure;
using ZAFHartTypes::ItemIndex;
using ZAFHartTypes::SameKey;
using ZAFHartTypes::Variant;

constexpr std::int32_t kHandled = 1;

}  // namespace

std::int32_t CEmptyErrorHandler::ObjectError(const std::shared_ptr<DDObject>&, ItemIndex index) {
  if (static_cast<std::int32_t>(index) < 0) criticalErrors_ = true;
  return kHandled;
}

std::int32_t CEmptyErrorHandler::ResponseCodeError(const CommandStatus&,
                                                   const std::shared_ptr<CommandRef>&) {
  return kHandled;
}

std::int32_t CEmptyErrorHandler::EvaluationError(const std::string&) {
  return kHandled;
}

Variant CEmptyErrorHandler::Invoke(std::string_view name, std::span<const Variant> arguments) {
  const auto property = [&]() -> bool& {
    if (SameKey(name, "CriticalErrors")) return criticalErrors_;
    if (SameKey(name, "RaiseCriticalErrors")) return raiseCriticalErrors_;
    throw Failure(ErrorNumber::MemberNotFound, "CEmptyErrorHandler",
                  "CEmptyErrorHandler has no member \"" + std::string(name) + "\".");
  };
  bool& value = property();
  if (arguments.empty()) return value;
  if (arguments.size() > 1) {
    throw Failure(ErrorNumber::InvalidProcedureCall, "CEmptyErrorHandler",
                  "\"" + std::string(name) + "\" takes one value.");
  }
  value = arguments.front().ToBoolean();
  return {};
}

}  // namespace ZAFHartLib
