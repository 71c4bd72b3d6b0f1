#pragma once

#include <cstdint>

#include "ddobjects/Codes.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

// Flags of a variable, addressed by index 0 to 31; all unset at first. The library knows those of
// VariableFlag, whose meaning stands there; others are for hosts.
class ZAF_API VariableAttributes {
 public:
  bool Flag(VariableFlag index) const {
    return ((bits_ >> static_cast<unsigned>(index)) & 1U) != 0;
  }
  void SetFlag(VariableFlag index, bool value) {
    const std::uint32_t bit = 1U << static_cast<unsigned>(index);
    bits_ = value ? bits_ | bit : bits_ & ~bit;
  }
  bool IsDynamic() const { return Flag(VariableFlag::Dynamic); }
  bool IsLibraryHeld() const { return Flag(VariableFlag::LibraryHeld); }

  friend bool operator==(const VariableAttributes&, const VariableAttributes&) = default;

 private:
  std::uint32_t bits_ = 0;
};

}  // namespace ZAFHartTypes
