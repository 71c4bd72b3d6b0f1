#pragma once

#include <initializer_list>

#include "dtmkit/ItemBuilder.h"
#include "platform/Export.h"

namespace ZAFHartTypes::dtmkit {

// DD names of items. They are taken as they are; RequireConsistent finds those not described.
using Names = std::initializer_list<std::string_view>;

// Writes a menu; its entries stand in the order they are added, each call appends some.
class ZAF_API MenuBuilder : public ItemBuilder<MenuBuilder, Menu> {
 public:
  using ItemBuilder::ItemBuilder;
  // Variables with their values, to be edited or only shown.
  MenuBuilder& Variables(Names names);
  MenuBuilder& ReadOnlyVariables(Names names);
  // Sub-menus, methods to be started, edit displays to be opened: by their labels.
  MenuBuilder& Menus(Names names);
  MenuBuilder& Methods(Names names);
  MenuBuilder& EditDisplays(Names names);

 private:
  MenuBuilder& Add(ObjectKind kind, Names names, bool showValue, bool readOnly);
};

// Writes an edit display; each call appends to its list.
class ZAF_API EditDisplayBuilder : public ItemBuilder<EditDisplayBuilder, EditDisplay> {
 public:
  using ItemBuilder::ItemBuilder;
  // Variables that are only shown, variables that are edited, and write-as-one relations whose
  // members are edited together.
  EditDisplayBuilder& Display(Names variables);
  EditDisplayBuilder& Edit(Names variables);
  EditDisplayBuilder& EditAsOne(Names groups);
  // Methods that run before the display is shown, and when it is left.
  EditDisplayBuilder& PreEdit(Names methods);
  EditDisplayBuilder& PostEdit(Names methods);
};

// Writes a method. Without further words it is valid and does nothing.
class ZAF_API MethodBuilder : public ItemBuilder<MethodBuilder, Method> {
 public:
  using ItemBuilder::ItemBuilder;
  // In place of an earlier body.
  MethodBuilder& Body(MethodBody body);
  // VALIDITY: a method that is not valid is hidden and cannot be run.
  MethodBuilder& ValidWhen(Condition condition);
};

// Writes an item array. Elements are given with their index, the item's name, and the multilingual
// description that an index variable shows. Each call appends one; of two with the same index the
// first counts.
class ZAF_API ArrayBuilder : public ItemBuilder<ArrayBuilder, ItemArray> {
 public:
  using ItemBuilder::ItemBuilder;
  ArrayBuilder& Variable(std::int32_t index, std::string_view name, SharedText description);
  ArrayBuilder& Collection(std::int32_t index, std::string_view name, SharedText description);
  ArrayBuilder& Array(std::int32_t index, std::string_view name, SharedText description);
};

// Writes a collection. Members are given with their name in the collection and the item's name;
// each call appends one.
class ZAF_API CollectionBuilder : public ItemBuilder<CollectionBuilder, ItemCollection> {
 public:
  using ItemBuilder::ItemBuilder;
  CollectionBuilder& Variable(std::string_view member, std::string_view name);
  CollectionBuilder& Array(std::string_view member, std::string_view name);
  CollectionBuilder& Collection(std::string_view member, std::string_view name);
  CollectionBuilder& Menu(std::string_view member, std::string_view name);
};

// Writes a refresh relation; each call appends to its list.
class ZAF_API RefreshRelationBuilder : public ItemBuilder<RefreshRelationBuilder, RefreshRelation> {
 public:
  using ItemBuilder::ItemBuilder;
  // When one of the triggers changes, the refreshed variables are read again.
  RefreshRelationBuilder& Triggers(Names variables);
  RefreshRelationBuilder& Refreshes(Names variables);
};

// Writes a unit relation. It has one unit variable; Dependents appends.
class ZAF_API UnitRelationBuilder : public ItemBuilder<UnitRelationBuilder, UnitRelation> {
 public:
  using ItemBuilder::ItemBuilder;
  // The dependents have the unit that the variable `unit` holds.
  UnitRelationBuilder& Unit(std::string_view unit);
  UnitRelationBuilder& Dependents(Names variables);
};

// Writes a write-as-one relation.
class ZAF_API WriteAsOneBuilder : public ItemBuilder<WriteAsOneBuilder, WriteAsOne> {
 public:
  using ItemBuilder::ItemBuilder;
  // Variables that are edited and written together; each call appends some.
  WriteAsOneBuilder& Members(Names variables);
};

}  // namespace ZAFHartTypes::dtmkit
