#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "ddobjects/Variable.h"
#include "interfaces/IDDKernel.h"

namespace ZAFHartLib {

// An internal variable that every DTM has: it holds FDT and session state and is never read from or
// written to the device.
struct InternalVariable {
  std::string_view name;
  // Label, help, type and flags; one block for all DTM instances of the process.
  std::shared_ptr<const ZAFHartTypes::VariableBlock> attributes;
  ZAFHartTypes::Variant defaultValue;  // empty for none
  bool availableFromDefault = false;   // the default counts as a valid value at once
  bool (*validity)(ZAFHartTypes::IDDKernel& kernel) = nullptr;  // always valid when absent
};

// The internal variables in the order in which they are added to the database.
std::span<const InternalVariable> InternalVariables();
// By name, in exactly its letter case; nullptr for another name.
const InternalVariable* FindInternalVariable(std::string_view name);

// Computes the attributes. A value that the variable has, and a default that is not the
// catalogue's, stay.
void ComputeInternalVariable(const InternalVariable& row, ZAFHartTypes::IDDKernel& kernel,
                             ZAFHartTypes::Variable& variable);

}  // namespace ZAFHartLib
