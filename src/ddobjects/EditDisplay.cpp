#include "ddobjects/EditDisplay.h"

namespace ZAFHartTypes {

void EditDisplay::CopyFrom(const EditDisplay& other) {
  label_ = other.label_;
  displayItems_ = other.displayItems_;
  editItems_ = other.editItems_;
  preEditActions_ = other.preEditActions_;
  postEditActions_ = other.postEditActions_;
}

void EditDisplay::Assign(const DDObject& other) {
  if (&other == this) return;
  RequireSameKind(other);
  TakeStampsFrom(other);
  CopyFrom(static_cast<const EditDisplay&>(other));
}

void EditDisplay::DropBindings() {
  DDObject::DropBindings();
  for (EditDisplayItem& item : displayItems_) item.object.reset();
  for (EditDisplayItem& item : editItems_) item.object.reset();
}

std::string EditDisplay::Describe(std::int16_t infoLevel) const {
  std::string text = Definition().Describe(infoLevel);
  if (infoLevel <= 1) return text;
  text += " DISPLAY";
  for (const EditDisplayItem& item : displayItems_) text.append(" ").append(item.definition.Name());
  text += " EDIT";
  for (const EditDisplayItem& item : editItems_) text.append(" ").append(item.definition.Name());
  return text;
}

}  // namespace ZAFHartTypes
