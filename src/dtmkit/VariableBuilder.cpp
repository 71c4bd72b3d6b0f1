#include "dtmkit/VariableBuilder.h"

#include <algorithm>

namespace ZAFHartTypes::dtmkit {

VariableBuilder& VariableBuilder::Typed(TypeCode code, std::int32_t size) {
  TypeInfo& type = Prototype().EditTypeInfo();
  type.SetTypeCode(code);
  type.SetSize(size);
  return *this;
}

VariableBuilder& VariableBuilder::Enumerated(std::int32_t size, Enums items) {
  Typed(TypeCode::Enumerated, size);
  TypeInfo& type = Prototype().EditTypeInfo();
  for (const EnumItem& item : *items)
    type.SetMaxEnumValue(std::max(type.MaxEnumValue(), item.Value()));
  type.SetEnumItems(std::move(items));
  return *this;
}

VariableBuilder& VariableBuilder::BitEnumerated(std::int32_t size, Bits items) {
  Typed(TypeCode::BitEnumerated, size);
  Prototype().EditTypeInfo().SetBitItems(std::move(items));
  return *this;
}

VariableBuilder& VariableBuilder::Index(std::int32_t size, std::string_view array) {
  Typed(TypeCode::Index, size);
  const auto prototype = TheCatalogue().Prototype<ItemArray>(array);
  Prototype().EditTypeInfo().SetIndexedArray(prototype);
  // An array with conditional elements is the instance's own; others are shared by all instances.
  return OnCompute([&catalogue = TheCatalogue(), definition = prototype->Definition()](
                       Context& context, Variable& variable) {
    if (!catalogue.IsComputed<ItemArray>(definition)) return;
    variable.EditTypeInfo().SetIndexedArray(context.Kernel().GetArray(definition));
  });
}

VariableBuilder& VariableBuilder::Range(Variant minimum, Variant maximum) {
  TypeInfo& type = Prototype().EditTypeInfo();
  const std::int32_t index = type.RangeCount() + 1;
  type.SetMinValue(index, std::move(minimum));
  type.SetMaxValue(index, std::move(maximum));
  return *this;
}

VariableBuilder& VariableBuilder::Format(std::string format) {
  Prototype().EditTypeInfo().SetDisplayFormat(std::move(format));
  return *this;
}

VariableBuilder& VariableBuilder::Scale(Variant factor) {
  Prototype().EditTypeInfo().SetScalingFactor(std::move(factor));
  return *this;
}

VariableBuilder& VariableBuilder::Unit(SharedText text) {
  Prototype().SetFixedUnitText(std::move(text));
  return *this;
}

VariableBuilder& VariableBuilder::Default(const Variant& value) {
  Prototype().SetDefaultValue(value);
  Prototype().SetValue(value);
  return *this;
}

VariableBuilder& VariableBuilder::ReadOnly() {
  Prototype().SetHandling(true, false);
  return *this;
}

VariableBuilder& VariableBuilder::WriteOnly() {
  Prototype().SetHandling(false, true);
  return *this;
}

VariableBuilder& VariableBuilder::Flagged(VariableFlag flag) {
  Prototype().EditAttributes().SetFlag(flag, true);
  return *this;
}

VariableBuilder& VariableBuilder::Dynamic() {
  return Flagged(VariableFlag::Dynamic);
}

VariableBuilder& VariableBuilder::Local() {
  return Flagged(VariableFlag::LibraryHeld);
}

VariableBuilder& VariableBuilder::Actions(ActionList list,
                                          std::initializer_list<std::string_view> methods) {
  DefinitionList& actions = Prototype().EditActions(list);
  for (const std::string_view method : methods) actions.Add(MethodNamed(method));
  return *this;
}

VariableBuilder& VariableBuilder::ValidWhen(Condition condition) {
  return OnCompute([condition = std::move(condition)](Context& context, Variable& variable) {
    variable.SetValidity(condition(context));
  });
}

VariableBuilder& VariableBuilder::WritableWhen(Condition condition) {
  // The static handling stays where it is what the condition says: the block stays shared then.
  return OnCompute([condition = std::move(condition)](Context& context, Variable& variable) {
    const bool writable = condition(context);
    if (writable != variable.CheckHandling(AccessMode::Write))
      variable.SetHandling(variable.CheckHandling(AccessMode::Read), writable);
  });
}

}  // namespace ZAFHartTypes::dtmkit
