#pragma once

#include <vector>

#include "ddobjects/DDObject.h"
#include "platform/Export.h"
#include "types/SharedText.h"

namespace ZAFHartTypes {

struct ArrayElement {
  std::int32_t index = 0;
  SharedText description;  // multilingual
  ZAFHartTypes::Definition definition;
};

class ZAF_API ItemArray : public DDObject {
 public:
  static constexpr ObjectKind kKind = ObjectKind::ItemArray;
  explicit ItemArray(const ZAFHartTypes::Definition& definition) : DDObject(definition) {}
  ItemArray(const ItemArray&) = default;

  const ZAFHartTypes::Definition& Definition() const { return ObjectDefinition(); }
  const std::string& Label() const { return label_; }
  void SetLabel(SharedText label) { label_ = std::move(label); }
  std::vector<ArrayElement>& Elements() { return elements_; }
  const std::vector<ArrayElement>& Elements() const { return elements_; }
  // First element of that index; nullptr when there is none.
  const ArrayElement* Find(std::int32_t index) const;
  std::shared_ptr<DDObject> Entry() { return shared_from_this(); }

  void Assign(const DDObject& other) override;
  std::shared_ptr<DDObject> GetCopy() const override { return std::make_shared<ItemArray>(*this); }
  std::string Describe(std::int16_t infoLevel) const override;

 private:
  SharedText label_;
  std::vector<ArrayElement> elements_;
};

struct CollectionMember {
  std::string name;
  ZAFHartTypes::Definition definition;
};

class ZAF_API ItemCollection : public DDObject {
 public:
  static constexpr ObjectKind kKind = ObjectKind::Collection;
  explicit ItemCollection(const ZAFHartTypes::Definition& definition) : DDObject(definition) {}
  ItemCollection(const ItemCollection&) = default;

  const ZAFHartTypes::Definition& Definition() const { return ObjectDefinition(); }
  const std::string& Label() const { return label_; }
  void SetLabel(SharedText label) { label_ = std::move(label); }
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
