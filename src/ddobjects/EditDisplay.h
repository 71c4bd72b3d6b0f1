#pragma once

#include <vector>

#include "ddobjects/DDObject.h"
#include "ddobjects/DefinitionList.h"
#include "platform/Export.h"
#include "types/SharedText.h"

namespace ZAFHartTypes {

// What an edit display shows or lets edit.
struct EditDisplayItem {
  ZAFHartTypes::Definition definition;
  // The item's entry as the kernel last looked it up, of a variable a snapshot; nothing before.
  std::shared_ptr<DDObject> object;
};
// In DD order.
using EditDisplayItems = std::vector<EditDisplayItem>;

// A DD edit display: variables that are shown, variables and groups that are edited, and methods
// that are run when it is opened and left.
class ZAF_API EditDisplay : public DDObject {
 public:
  static constexpr ObjectKind kKind = ObjectKind::EditDisplay;
  explicit EditDisplay(const ZAFHartTypes::Definition& definition) : DDObject(definition) {}
  EditDisplay(const EditDisplay&) = default;

  const ZAFHartTypes::Definition& Definition() const { return ObjectDefinition(); }
  const std::string& Label() const { return label_; }
  void SetLabel(SharedText label) { label_ = std::move(label); }
  // Variables; with another kind among them the display cannot be opened, which is reported
  // (ItemIndex::DisplayItemNotVariable).
  EditDisplayItems& DisplayItems() { return displayItems_; }
  const EditDisplayItems& DisplayItems() const { return displayItems_; }
  // Variables and write-as-one relations; another kind is reported likewise
  // (ItemIndex::EditItemNotEditable).
  EditDisplayItems& EditItems() { return editItems_; }
  const EditDisplayItems& EditItems() const { return editItems_; }
  // Methods, run in this order before the display is shown, and when its menu item is left.
  DefinitionList& PreEditActions() { return preEditActions_; }
  const DefinitionList& PreEditActions() const { return preEditActions_; }
  DefinitionList& PostEditActions() { return postEditActions_; }
  const DefinitionList& PostEditActions() const { return postEditActions_; }
  std::shared_ptr<DDObject> Entry() { return shared_from_this(); }
  // Takes over label, items and actions of another edit display of any name.
  void CopyFrom(const EditDisplay& other);

  void Assign(const DDObject& other) override;
  std::shared_ptr<DDObject> GetCopy() const override {
    return std::make_shared<EditDisplay>(*this);
  }
  void DropBindings() override;
  std::string Describe(std::int16_t infoLevel) const override;

 private:
  SharedText label_;
  EditDisplayItems displayItems_;
  EditDisplayItems editItems_;
  DefinitionList preEditActions_;
  DefinitionList postEditActions_;
};

}  // namespace ZAFHartTypes
