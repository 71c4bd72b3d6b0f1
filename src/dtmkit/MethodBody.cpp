#include "dtmkit/MethodBody.h"

#include <exception>

#include "types/Failure.h"

namespace ZAFHartTypes::dtmkit {
namespace {

// How a builtin leaves after the common error path: the user has read why.
bool HasBeenTold(const IDDBuiltinLib& dd, const Failure& failure) {
  return dd.IsAbort() && failure.Number() == ErrorNumber::NotImplemented;
}

// What is to be raised on, if anything.
std::exception_ptr RunBody(const MethodBody& body, IDDBuiltinLib& dd) {
  try {
    body(dd);
    return nullptr;
  } catch (const Failure& failure) {
    if (HasBeenTold(dd, failure)) return nullptr;
    dd.ProcessAbort();
    return std::current_exception();
  } catch (...) {
    dd.ProcessAbort();
    return std::current_exception();
  }
}

void RunAbortMethods(Context& context, const IDDBuiltinLib& dd,
                     const std::shared_ptr<DDObject>& object) {
  // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): a method may change the list
  const DefinitionList methods = dd.AbortMethodsList();
  for (const Definition& method : methods) {
    IgnoreFailures([&] { context.Kernel().ExecuteMethod(method, object, true); });
  }
}

}  // namespace

IDDBuiltinLib2& Extended(IDDBuiltinLib& dd) {
  if (auto* extended = dynamic_cast<IDDBuiltinLib2*>(&dd)) return *extended;
  throw Failure(ErrorNumber::TypeMismatch, "dtmkit.Extended",
                "The builtin library in use offers the HART DD builtins only.");
}

void RunMethod(Context& context, const std::string& name, const MethodBody& body,
               std::shared_ptr<DDObject> object, bool inAbort) {
  auto dd = context.Components().DDBuiltinLib(object, name);
  const std::exception_ptr failure = RunBody(body, *dd);
  if (dd->IsAbort() && !inAbort) RunAbortMethods(context, *dd, object);
  dd.reset();
  if (failure) std::rethrow_exception(failure);
}

AbortGuard::AbortGuard(IDDBuiltinLib& dd, std::string method)
    : dd_(dd), method_(std::move(method)), unwinding_(std::uncaught_exceptions()) {
  dd_.AddAbortMethod(method_);
}

AbortGuard::~AbortGuard() {
  if (isDone_) return;
  dd_.AddAbortMethod(method_);
  // A failure aborts the method where it is caught, which still sees who raised it.
  if (std::uncaught_exceptions() == unwinding_) dd_.ProcessAbort();
}

void AbortGuard::Done() {
  if (isDone_) return;
  isDone_ = true;
  dd_.RemoveAbortMethod(method_);
}

}  // namespace ZAFHartTypes::dtmkit
