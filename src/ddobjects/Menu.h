#pragma once

#include <vector>

#include "ddobjects/DDObject.h"
#include "platform/Export.h"
#include "types/SharedText.h"

namespace ZAFHartTypes {

// Qualifiers of a menu item, as bits of MenuQualifier; all unset at first.
class ZAF_API MenuQualifiers {
 public:
  bool Qualifier(MenuQualifier index) const {
    return ((bits_ >> static_cast<unsigned>(index)) & 1U) != 0;
  }
  void SetQualifier(MenuQualifier index, bool value) {
    const std::uint32_t bit = 1U << static_cast<unsigned>(index);
    bits_ = value ? bits_ | bit : bits_ & ~bit;
  }

 private:
  std::uint32_t bits_ = 0;
};

// An entry of a menu: the item it shows and its qualifiers.
class ZAF_API MenuItem {
 public:
  // Of no item, to be filled in, or of an item that is there; without qualifiers but ReadOnly.
  MenuItem() = default;
  explicit MenuItem(const ZAFHartTypes::Definition& definition, bool readOnly = false);

  const ZAFHartTypes::Definition& Definition() const { return definition_; }
  // Leaves the qualifiers and the bound entry alone.
  void SetDefinition(const ZAFHartTypes::Definition& definition) { definition_ = definition; }
  const MenuQualifiers& Qualifiers() const { return qualifiers_; }
  // By the DD, or for the present user (Restricted).
  bool IsReadOnly() const { return qualifiers_.Qualifier(MenuQualifier::ReadOnly); }
  void SetQualifier(MenuQualifier index, bool value) { qualifiers_.SetQualifier(index, value); }
  // The item's entry as the kernel last looked it up to show the menu, of a variable a snapshot;
  // nothing before.
  const std::shared_ptr<ZAFHartTypes::DDObject>& DDObject() const { return object_; }
  void SetDDObject(std::shared_ptr<ZAFHartTypes::DDObject> object) { object_ = std::move(object); }

 private:
  ZAFHartTypes::Definition definition_;
  MenuQualifiers qualifiers_;
  std::shared_ptr<ZAFHartTypes::DDObject> object_;
};

// Items of a menu; positions count from 1. Copies are independent; the bound entries are shared.
class ZAF_API MenuItems {
 public:
  // Appends; an item may stand in a menu more than once.
  void Add(MenuItem item) { items_.push_back(std::move(item)); }
  // Raises SubscriptOutOfRange for a position outside 1..Count().
  MenuItem& Item(std::size_t position);
  const MenuItem& Item(std::size_t position) const;
  std::size_t Count() const { return items_.size(); }
  // By name; the kind does not count.
  bool Contains(const ZAFHartTypes::Definition& definition) const;
  void Clear() { items_.clear(); }
  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }

 private:
  std::vector<MenuItem> items_;
};

// A DD menu: variables, methods, edit displays and further menus in DD order. The data model
// computes its items; the kernel binds and restricts them for display.
class ZAF_API Menu : public DDObject {
 public:
  static constexpr ObjectKind kKind = ObjectKind::Menu;
  explicit Menu(const ZAFHartTypes::Definition& definition = {})
      : ZAFHartTypes::DDObject(definition) {}
  Menu(const Menu&) = default;

  const ZAFHartTypes::Definition& Definition() const { return ObjectDefinition(); }
  // Before the menu is added to the worker database, which goes by the name it then has.
  void SetDefinition(const ZAFHartTypes::Definition& definition) {
    SetObjectDefinition(definition);
  }
  const std::string& Label() const { return label_; }
  void SetLabel(SharedText label) { label_ = std::move(label); }
  const MenuItems& Items() const { return items_; }
  MenuItems& Items() { return items_; }
  void SetItems(MenuItems items) { items_ = std::move(items); }
  // The menu was entered from a read-only item: nothing in it is to be edited. The items do not
  // say so themselves.
  bool IsReadOnly() const { return isReadOnly_; }
  void SetIsReadOnly(bool readOnly) { isReadOnly_ = readOnly; }
  std::shared_ptr<ZAFHartTypes::DDObject> Entry() { return shared_from_this(); }

  void Assign(const ZAFHartTypes::DDObject& other) override;
  std::shared_ptr<ZAFHartTypes::DDObject> GetCopy() const override {
    return std::make_shared<Menu>(*this);
  }
  void DropBindings() override;
  std::string Describe(std::int16_t infoLevel) const override;

 private:
  SharedText label_;
  MenuItems items_;
  bool isReadOnly_ = false;
};

}  // namespace ZAFHartTypes
