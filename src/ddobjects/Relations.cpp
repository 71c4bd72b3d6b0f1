#include "ddobjects/Relations.h"

#include "ddobjects/Variable.h"

namespace ZAFHartTypes {

void RefreshRelation::Assign(const DDObject& other) {
  if (&other == this) return;
  RequireSameKind(other);
  const auto& from = static_cast<const RefreshRelation&>(other);
  TakeStampsFrom(from);
  refreshItems_ = from.refreshItems_;
  triggerItems_ = from.triggerItems_;
}

std::string RefreshRelation::Describe(std::int16_t infoLevel) const {
  std::string text = ObjectDefinition().Describe(infoLevel);
  if (infoLevel <= 1) return text;
  return text.append(" TRIGGER")
      .append(triggerItems_.Describe(1))
      .append(" REFRESH")
      .append(refreshItems_.Describe(1));
}

void UnitRelation::Assign(const DDObject& other) {
  if (&other == this) return;
  RequireSameKind(other);
  const auto& from = static_cast<const UnitRelation&>(other);
  TakeStampsFrom(from);
  unitVariable_ = from.unitVariable_;
  dependentItems_ = from.dependentItems_;
}

std::string UnitRelation::Describe(std::int16_t infoLevel) const {
  std::string text = ObjectDefinition().Describe(infoLevel);
  if (infoLevel <= 1) return text;
  return text.append(" UNIT ")
      .append(unitVariable_.Name())
      .append(" DEPENDENT")
      .append(dependentItems_.Describe(1));
}

void WriteAsOne::Assign(const DDObject& other) {
  if (&other == this) return;
  RequireSameKind(other);
  const auto& from = static_cast<const WriteAsOne&>(other);
  TakeStampsFrom(from);
  items_ = from.items_;
  isEditing_ = from.isEditing_;
  isComplete_ = from.isComplete_;
}

void WriteAsOne::DropBindings() {
  DDObject::DropBindings();
  for (WriteAsOneItem& item : items_) item.variable.reset();
}

std::string WriteAsOne::Describe(std::int16_t infoLevel) const {
  std::string text = Definition().Describe(infoLevel);
  if (infoLevel <= 0) return text;
  if (isEditing_) text += " editing";
  if (isComplete_) text += " complete";
  for (const WriteAsOneItem& item : items_) text.append(" ").append(item.definition.Name());
  return text;
}

}  // namespace ZAFHartTypes
