#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "ddobjects/Codes.h"
#include "ddobjects/KeyedList.h"
#include "platform/Export.h"
#include "types/Variant.h"

namespace HartLinkSim {

// The values of an emulated device by variable name. A value that came as text from a file gets its
// type from the first command that names the variable.
class ZAF_API DeviceMemory {
 public:
  using Value = ZAFHartTypes::Variant;

  // One value.
  struct Cell {
    Value value;
    // Type of the variable, as far as a command has told it.
    ZAFHartTypes::TypeCode type = ZAFHartTypes::TypeCode::NotComputed;
    std::size_t fileLine = 0;  // where the text came from; 0: from no file
    bool isChanged = false;    // since the file was written
  };

  // nullptr for an unknown name.
  const Cell* Find(ZAFHartTypes::TextKey name) const { return cells_.Find(name); }
  // The value as one of the type; nothing for an unknown name. Raises TypeMismatch for a text from
  // a file that is none of the type, naming variable and line.
  std::optional<Value> ValueOf(ZAFHartTypes::TextKey name, ZAFHartTypes::TypeCode type);
  // True when the value is new or another one.
  bool Set(ZAFHartTypes::TextKey name, Value value, ZAFHartTypes::TypeCode type);
  // Replaces a value by a text whose type is not known yet. `line` counts from 1.
  void SetFromFile(ZAFHartTypes::TextKey name, std::string text, std::size_t line);

  // Pairs of name and cell, in the order they came.
  auto begin() { return cells_.begin(); }
  auto end() { return cells_.end(); }

 private:
  Cell& CellOf(ZAFHartTypes::TextKey name);

  ZAFHartTypes::KeyedList<Cell> cells_;
};

}  // namespace HartLinkSim
