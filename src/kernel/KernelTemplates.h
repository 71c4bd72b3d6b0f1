#pragma once

#include "interfaces/IDDWorkerDB.h"
#include "kernel/CHARTKernel.h"
#include "types/Failure.h"

// Bodies of the kernel's look-ups, for its own source files.
namespace ZAFHartLib {

// The view of one kind that an object gives; nothing for another kind.
template <typename View>
std::shared_ptr<View> ViewOf(const std::shared_ptr<ZAFHartTypes::DDObject>& object) {
  if (!object || object->Kind() != View::kKind) return nullptr;
  return std::dynamic_pointer_cast<View>(object);
}

// An argument that an operation cannot do without: ObjectNotSet when it is missing.
template <typename View>
void RequireObject(const std::shared_ptr<View>& object, const char* operation) {
  if (object) return;
  throw ZAFHartTypes::Failure(ZAFHartTypes::ErrorNumber::ObjectNotSet, operation,
                              "An object that the operation works on is missing.");
}

// The same for an object of one kind: InvalidArgument for another kind.
template <typename View>
std::shared_ptr<View> RequireView(const std::shared_ptr<ZAFHartTypes::DDObject>& object,
                                  const char* operation) {
  if (auto view = ViewOf<View>(object)) return view;
  throw ZAFHartTypes::Failure(ZAFHartTypes::ErrorNumber::InvalidArgument, operation,
                              ZAFHartTypes::kWrongKind);
}

template <typename View>
std::shared_ptr<View> CHARTKernel::Find(const Definition& definition) const {
  return ViewOf<View>(Database()->ReadObject(definition));
}

template <typename View>
std::shared_ptr<View> CHARTKernel::Stored(const Definition& definition,
                                          const char* operation) const {
  auto object = Find<View>(definition);
  if (!object) RaiseUnknown(definition, View::kKind, operation);
  return object;
}

}  // namespace ZAFHartLib
