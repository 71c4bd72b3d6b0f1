#pragma once

#include <vector>

#include "ddobjects/DDObject.h"
#include "ddobjects/DefinitionList.h"
#include "platform/Export.h"
#include "types/SharedText.h"

namespace ZAFHartTypes {

struct EditDisplayItem {
  ZAFHartTypes::Definition definition;
  std::shared_ptr<DDObject> object;  // the item's entry as last looked up
};
using EditDisplayItems = std::vector<EditDisplayItem>;

class ZAF_API EditDisplay : public DDObject {
 public:
  static constexpr ObjectKind kKind = ObjectKind::EditDisplay;
  explicit EditDisplay(const ZAFHartTypes::Definition& definition) : DDObject(definition) {}
  EditDisplay(const EditDisplay&) = default;

  const ZAFHartTypes::Definition& Definition() const { return ObjectDefinition(); }
  const std::string& Label() const { return label_; }
  void SetLabel(SharedText label) { label_ = std::move(label); }
  EditDisplayItems& DisplayItems() { return displayItems_; }
  const EditDisplayItems& DisplayItems() const { return displayItems_; }
  EditDisplayItems& EditItems() { return editItems_; }
  const EditDisplayItems& EditItems() const { return editItems_; }
  DefinitionList& PreEditActions() { return preEditActions_; }
  const DefinitionList& PreEditActions() const { return preEditActions_; }
  DefinitionList& PostEditActions() { return postEditActions_; }
  const DefinitionList& PostEditActions() const { return postEditActions_; }
  std::shared_ptr<DDObject> Entry() { return shared_from_this(); }
  // Takes over the state of another edit display.
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
