#pragma once

#include <vector>

#include "ddobjects/DDObject.h"
#include "platform/Export.h"
#include "types/SharedText.h"

namespace ZAFHartTypes {

// What an index of an item array stands for.
struct ArrayElement {
  std::int32_t index = 0;               // as the DD numbers it and an index variable holds it
  SharedText description;               // multilingual; what an index variable shows
  ZAFHartTypes::Definition definition;  // a variable, collection or array
};

// A DD item array.
class ZAF_API ItemArray : public DDObject {
 public:
  static constexpr ObjectKind kKind = ObjectKind::ItemArray;
  explicit ItemArray(const ZAFHartTypes::Definition& definition) : DDObject(definition) {}
  ItemArray(const ItemArray&) = default;

  const ZAFHartTypes::Definition& Definition() const { return ObjectDefinition(); }
  const std::string& Label() const { return label_; }
  void SetLabel(SharedText label) { label_ = std::move(label); }
  // In DD order; indexes need not follow one another. A data model may add and remove elements when
  // it computes the array.
  std::vector<ArrayElement>& Elements() { return elements_; }
  const std::vector<ArrayElement>& Elements() const { return elements_; }
  // First element of that index; nullptr when there is none. Good until the elements change.
  const ArrayElement* Find(std::int32_t index) const;
  std::shared_ptr<DDObject> Entry() { return shared_from_this(); }

  void Assign(const DDObject& other) override;
  std::shared_ptr<DDObject> GetCopy() const override { return std::make_shared<ItemArray>(*this); }
  std::string Describe(std::int16_t infoLevel) const override;

 private:
  SharedText label_;
  std::vector<ArrayElement> elements_;
};

// An item of a collection.
struct CollectionMember {
  std::string name;                     // within the collection, in the DD's letter case
  ZAFHartTypes::Definition definition;  // an item of any kind
};

// A DD collection: items under names of their own.
class ZAF_API ItemCollection : public DDObject {
 public:
  static constexpr ObjectKind kKind = ObjectKind::Collection;
  explicit ItemCollection(const ZAFHartTypes::Definition& definition) : DDObject(definition) {}
  ItemCollection(const ItemCollection&) = default;

  const ZAFHartTypes::Definition& Definition() const { return ObjectDefinition(); }
  const std::string& Label() const { return label_; }
  void SetLabel(SharedText label) { label_ = std::move(label); }
  // In DD order. IDDKernel::ReadCollectionMember compares their names exactly.
  std::vector<CollectionMember>& Members() { return members_; }
  const std::vector<CollectionMember>& Members() const { return members_; }
  std::shared_ptr<DDObject> Entry() { return shared_from_this(); }

  void Assign(const DDObject& other) override;
  std::shared_ptr<DDObject> GetCopy() const override {
    return std::make_shared<ItemCollection>(*this);
  }
  std::string Describe(std::int16_t infoLevel) const override;

 private:
  SharedText label_;
  std::vector<CollectionMember> members_;
};

}  // namespace ZAFHartTypes
