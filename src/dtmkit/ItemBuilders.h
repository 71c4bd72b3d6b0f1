#pragma once

#include <initializer_list>

#include "dtmkit/ItemBuilder.h"
#include "platform/Export.h"

namespace ZAFHartTypes::dtmkit {

using Names = std::initializer_list<std::string_view>;

// Writes a menu; its entries stand in the order they are added.
class ZAF_API MenuBuilder : public ItemBuilder<MenuBuilder, Menu> {
 public:
  using ItemBuilder::ItemBuilder;
  // Variables with their values, to be edited or only shown.
  MenuBuilder& Variables(Names names);
  MenuBuilder& ReadOnlyVariables(Names names);
  MenuBuilder& Menus(Names names);
  MenuBuilder& Methods(Names names);
  MenuBuilder& EditDisplays(Names names);

 private:
  MenuBuilder& Add(ObjectKind kind, Names names, bool showValue, bool readOnly);
};

class ZAF_API EditDisplayBuilder : public ItemBuilder<EditDisplayBuilder, EditDisplay> {
 public:
  using ItemBuilder::ItemBuilder;
  EditDisplayBuilder& Display(Names variables);
  EditDisplayBuilder& Edit(Names variables);
  EditDisplayBuilder& EditAsOne(Names groups);
  EditDisplayBuilder& PreEdit(Names methods);
  EditDisplayBuilder& PostEdit(Names methods);
};

class ZAF_API MethodBuilder : public ItemBuilder<MethodBuilder, Method> {
 public:
  using ItemBuilder::ItemBuilder;
  MethodBuilder& Body(MethodBody body);
  MethodBuilder& ValidWhen(Condition condition);
};

// Elements are given with their index, the item, and a multilingual description.
class ZAF_API ArrayBuilder : public ItemBuilder<ArrayBuilder, ItemArray> {
 public:
  using ItemBuilder::ItemBuilder;
  ArrayBuilder& Variable(std::int32_t index, std::string_view name, SharedText description);
  ArrayBuilder& Collection(std::int32_t index, std::string_view name, SharedText description);
  ArrayBuilder& Array(std::int32_t index, std::string_view name, SharedText description);
};

class ZAF_API CollectionBuilder : public ItemBuilder<CollectionBuilder, ItemCollection> {
 public:
  using ItemBuilder::ItemBuilder;
  CollectionBuilder& Variable(std::string_view member, std::string_view name);
  CollectionBuilder& Array(std::string_view member, std::string_view name);
  CollectionBuilder& Collection(std::string_view member, std::string_view name);
  CollectionBuilder& Menu(std::string_view member, std::string_view name);
};

class ZAF_API RefreshRelationBuilder : public ItemBuilder<RefreshRelationBuilder, RefreshRelation> {
 public:
  using ItemBuilder::ItemBuilder;
  // When one of the triggers changes, the refreshed variables are read again.
  RefreshRelationBuilder& Triggers(Names variables);
  RefreshRelationBuilder& Refreshes(Names variables);
};

class ZAF_API UnitRelationBuilder : public ItemBuilder<UnitRelationBuilder, UnitRelation> {
 public:
  using ItemBuilder::ItemBuilder;
  // The dependents have the unit that the variable `unit` holds.
  UnitRelationBuilder& Unit(std::string_view unit);
  UnitRelationBuilder& Dependents(Names variables);
};

class ZAF_API WriteAsOneBuilder : public ItemBuilder<WriteAsOneBuilder, WriteAsOne> {
 public:
  using ItemBuilder::ItemBuilder;
  WriteAsOneBuilder& Members(Names variables);
};

}  // namespace ZAFHartTypes::dtmkit
