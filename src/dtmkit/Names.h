#pragma once

#include <string_view>

#include "ddobjects/Definition.h"
#include "platform/Export.h"

namespace ZAFHartTypes::dtmkit {

// The definition of an item by its DD identifier. Whether there is such an item is not asked.
inline Definition VariableNamed(std::string_view name) {
  return Definition::Define(name, ObjectKind::Variable);
}
inline Definition MenuNamed(std::string_view name) {
  return Definition::Define(name, ObjectKind::Menu);
}
inline Definition MethodNamed(std::string_view name) {
  return Definition::Define(name, ObjectKind::Method);
}
inline Definition EditDisplayNamed(std::string_view name) {
  return Definition::Define(name, ObjectKind::EditDisplay);
}
inline Definition WriteAsOneNamed(std::string_view name) {
  return Definition::Define(name, ObjectKind::WriteAsOne);
}
inline Definition ArrayNamed(std::string_view name) {
  return Definition::Define(name, ObjectKind::ItemArray);
}
inline Definition CollectionNamed(std::string_view name) {
  return Definition::Define(name, ObjectKind::Collection);
}

// A variable's name where one is asked for: as text, or as a definition made beforehand, which
// saves looking the text up.
class ZAF_API VariableName {
 public:
  VariableName(const char* name) : definition_(VariableNamed(name)) {}       // NOLINT
  VariableName(std::string_view name) : definition_(VariableNamed(name)) {}  // NOLINT
  VariableName(const Definition& definition) : definition_(definition) {}    // NOLINT
  operator const Definition&() const { return definition_; }                 // NOLINT

 private:
  Definition definition_;
};

}  // namespace ZAFHartTypes::dtmkit
