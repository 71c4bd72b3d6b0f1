#pragma once

#include <cstdint>

#include "ddobjects/Definition.h"
#include "interfaces/ComponentBase.h"

namespace ZAFHartLib {

// HART command numbers that the wrapper looks for: the device's identity, its polling address and
// its tag (universal commands).
enum class UniversalCommand : std::int16_t {
  ReadUniqueIdentifier = 0,
  WritePollingAddress = 6,
  ReadTag = 13,
};

// The first command of that number in the worker database; empty when there is none.
ZAFHartTypes::Definition FindCommand(const ZAFHartTypes::ModelReference& model,
                                     UniversalCommand number);

}  // namespace ZAFHartLib
