#pragma once

#include <vector>

#include "ddobjects/DDObject.h"
#include "ddobjects/DefinitionList.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

// When a trigger item changes, the refresh items are to be read again. Both are variables; items of
// another kind make the evaluation raise InvalidArgument, unknown names are passed over.
class ZAF_API RefreshRelation : public DDObject {
 public:
  static constexpr ObjectKind kKind = ObjectKind::RefreshRelation;
  explicit RefreshRelation(const Definition& definition) : DDObject(definition) {}
  RefreshRelation(const RefreshRelation&) = default;

  RelationItemList& RefreshItems() { return refreshItems_; }
  const RelationItemList& RefreshItems() const { return refreshItems_; }
  RelationItemList& TriggerItems() { return triggerItems_; }
  const RelationItemList& TriggerItems() const { return triggerItems_; }
  // The specifier is being computed. For the worker database; Assign leaves it alone.
  bool InRecursion() const { return inRecursion_; }
  void SetInRecursion(bool running) { inRecursion_ = running; }

  void Assign(const DDObject& other) override;
  std::shared_ptr<DDObject> GetCopy() const override {
    return std::make_shared<RefreshRelation>(*this);
  }
  std::string Describe(std::int16_t infoLevel) const override;

 private:
  RelationItemList refreshItems_;
  RelationItemList triggerItems_;
  bool inRecursion_ = false;
};

// The dependent items, variables, have the unit that the unit variable holds: its display text is
// their unit text. An item of another kind makes the evaluation raise InvalidArgument.
class ZAF_API UnitRelation : public DDObject {
 public:
  static constexpr ObjectKind kKind = ObjectKind::UnitRelation;
  explicit UnitRelation(const Definition& definition) : DDObject(definition) {}
  UnitRelation(const UnitRelation&) = default;

  // Empty: no unit variable applies at present, and the dependent items keep what they have.
  const Definition& UnitVariable() const { return unitVariable_; }
  void SetUnitVariable(const Definition& variable) { unitVariable_ = variable; }
  RelationItemList& DependentItems() { return dependentItems_; }
  const RelationItemList& DependentItems() const { return dependentItems_; }
  // As with RefreshRelation.
  bool InRecursion() const { return inRecursion_; }
  void SetInRecursion(bool running) { inRecursion_ = running; }

  void Assign(const DDObject& other) override;
  std::shared_ptr<DDObject> GetCopy() const override {
    return std::make_shared<UnitRelation>(*this);
  }
  std::string Describe(std::int16_t infoLevel) const override;

 private:
  Definition unitVariable_;
  RelationItemList dependentItems_;
  bool inRecursion_ = false;
};

// A member of such a group.
struct WriteAsOneItem {
  ZAFHartTypes::Definition definition;  // a variable
  std::shared_ptr<Variable> variable;   // a snapshot, bound while the group is edited
};

// Variables that are edited and written together.
class ZAF_API WriteAsOne : public DDObject {
 public:
  static constexpr ObjectKind kKind = ObjectKind::WriteAsOne;
  explicit WriteAsOne(const ZAFHartTypes::Definition& definition) : DDObject(definition) {}
  WriteAsOne(const WriteAsOne&) = default;

  const ZAFHartTypes::Definition& Definition() const { return ObjectDefinition(); }
  // The members in DD order.
  std::vector<WriteAsOneItem>& Items() { return items_; }
  const std::vector<WriteAsOneItem>& Items() const { return items_; }
  // From IDDKernel::StartWriteAsOne until the complete group is left in its edit display.
  bool IsEditing() const { return isEditing_; }
  void SetIsEditing(bool editing) { isEditing_ = editing; }
  // Every member carries IsChecked in the current editing.
  bool IsComplete() const { return isComplete_; }
  void SetIsComplete(bool complete) { isComplete_ = complete; }
  std::shared_ptr<DDObject> Entry() { return shared_from_this(); }

  void Assign(const DDObject& other) override;
  std::shared_ptr<DDObject> GetCopy() const override { return std::make_shared<WriteAsOne>(*this); }
  void DropBindings() override;
  std::string Describe(std::int16_t infoLevel) const override;

 private:
  std::vector<WriteAsOneItem> items_;
  bool isEditing_ = false;
  bool isComplete_ = false;
};

}  // namespace ZAFHartTypes
