#pragma once

#include "dtmkit/Names.h"
#include "interfaces/IDDComponents.h"
#include "platform/Export.h"

namespace ZAFHartTypes::dtmkit {

// What a data model's functions see of their DTM instance while they run. It lives as long as the
// call and holds nothing.
//
// Every look-up of an unknown name, or of an item of another kind, raises ObjectNotSet.
class ZAF_API Context {
 public:
  // Both outlive the context.
  Context(IDDKernel& kernel, IDDComponents& components)
      : kernel_(kernel), components_(components) {}
  Context(const Context&) = delete;
  Context& operator=(const Context&) = delete;

  // The DTM instance's own, for what the look-ups here do not offer.
  IDDKernel& Kernel() const { return kernel_; }
  IDDComponents& Components() const { return components_; }

  // The variable with current attributes, as a snapshot; the device is not asked.
  std::shared_ptr<Variable> VariableOf(const VariableName& name) const {
    return kernel_.GetVariable(name);
  }
  // A variable's value as it stands: last read, written, or from its default. Empty at first.
  Variant Value(const VariableName& name) const { return VariableOf(name)->Value(); }
  // The value as an integer (0 when empty), as a number, as text; TypeMismatch and Overflow as
  // Variant raises them.
  std::int32_t Long(const VariableName& name) const { return Value(name).ToLong(); }
  double Number(const VariableName& name) const { return Value(name).ToDouble(); }
  std::string Text(const VariableName& name) const { return Value(name).ToText(); }
  // The variable's VALIDITY.
  bool IsValid(const VariableName& name) const { return VariableOf(name)->Validity(); }
  // Like Value, but a value that is not available is read from the device first: the message loop
  // runs meanwhile. A computation that uses it makes every look-up of its item one that may wait
  // for the device.
  Variant ReadValue(const VariableName& name) const { return kernel_.ReadVariable(name)->Value(); }

  // The item of the array's element of that index; an empty definition when the array has none.
  Definition Element(const Definition& array, std::int32_t index) const;
  // The item of the collection's member of that name (letter case does not count); an empty
  // definition when there is none.
  Definition Member(const Definition& collection, std::string_view name) const;

 private:
  IDDKernel& kernel_;
  IDDComponents& components_;
};

}  // namespace ZAFHartTypes::dtmkit
