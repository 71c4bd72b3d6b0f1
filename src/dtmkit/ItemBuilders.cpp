#include "dtmkit/ItemBuilders.h"

namespace ZAFHartTypes::dtmkit {
namespace {

void AddTo(DefinitionList& list, ObjectKind kind, Names names) {
  for (const std::string_view name : names) list.Add(Definition::Define(name, kind));
}

void AddTo(EditDisplayItems& list, ObjectKind kind, Names names) {
  for (const std::string_view name : names) list.push_back({Definition::Define(name, kind), {}});
}

}  // namespace

MenuBuilder& MenuBuilder::Add(ObjectKind kind, Names names, bool showValue, bool readOnly) {
  for (const std::string_view name : names) {
    MenuItem item(Definition::Define(name, kind), readOnly);
    item.SetQualifier(MenuQualifier::DisplayValue, showValue);
    Prototype().Items().Add(std::move(item));
  }
  return *this;
}

MenuBuilder& MenuBuilder::Variables(Names names) {
  return Add(ObjectKind::Variable, names, true, false);
}
MenuBuilder& MenuBuilder::ReadOnlyVariables(Names names) {
  return Add(ObjectKind::Variable, names, true, true);
}
MenuBuilder& MenuBuilder::Menus(Names names) {
  return Add(ObjectKind::Menu, names, false, false);
}
MenuBuilder& MenuBuilder::Methods(Names names) {
  return Add(ObjectKind::Method, names, false, false);
}
MenuBuilder& MenuBuilder::EditDisplays(Names names) {
  return Add(ObjectKind::EditDisplay, names, false, false);
}

EditDisplayBuilder& EditDisplayBuilder::Display(Names variables) {
  AddTo(Prototype().DisplayItems(), ObjectKind::Variable, variables);
  return *this;
}
EditDisplayBuilder& EditDisplayBuilder::Edit(Names variables) {
  AddTo(Prototype().EditItems(), ObjectKind::Variable, variables);
  return *this;
}
EditDisplayBuilder& EditDisplayBuilder::EditAsOne(Names groups) {
  AddTo(Prototype().EditItems(), ObjectKind::WriteAsOne, groups);
  return *this;
}
EditDisplayBuilder& EditDisplayBuilder::PreEdit(Names methods) {
  AddTo(Prototype().PreEditActions(), ObjectKind::Method, methods);
  return *this;
}
EditDisplayBuilder& EditDisplayBuilder::PostEdit(Names methods) {
  AddTo(Prototype().PostEditActions(), ObjectKind::Method, methods);
  return *this;
}

MethodBuilder& MethodBuilder::Body(MethodBody body) {
  TheCatalogue().OnExecute(Prototype().Definition().Name(), std::move(body));
  return *this;
}
MethodBuilder& MethodBuilder::ValidWhen(Condition condition) {
  return OnCompute([condition = std::move(condition)](Context& context, Method& method) {
    method.SetIsValid(condition(context));
  });
}

ArrayBuilder& ArrayBuilder::Variable(std::int32_t index, std::string_view name,
                                     SharedText description) {
  Prototype().Elements().push_back({index, std::move(description), VariableNamed(name)});
  return *this;
}
ArrayBuilder& ArrayBuilder::Collection(std::int32_t index, std::string_view name,
                                       SharedText description) {
  Prototype().Elements().push_back({index, std::move(description), CollectionNamed(name)});
  return *this;
}
ArrayBuilder& ArrayBuilder::Array(std::int32_t index, std::string_view name,
                                  SharedText description) {
  Prototype().Elements().push_back({index, std::move(description), ArrayNamed(name)});
  return *this;
}

CollectionBuilder& CollectionBuilder::Variable(std::string_view member, std::string_view name) {
  Prototype().Members().push_back({std::string(member), VariableNamed(name)});
  return *this;
}
CollectionBuilder& CollectionBuilder::Array(std::string_view member, std::string_view name) {
  Prototype().Members().push_back({std::string(member), ArrayNamed(name)});
  return *this;
}
CollectionBuilder& CollectionBuilder::Collection(std::string_view member, std::string_view name) {
  Prototype().Members().push_back({std::string(member), CollectionNamed(name)});
  return *this;
}
CollectionBuilder& CollectionBuilder::Menu(std::string_view member, std::string_view name) {
  Prototype().Members().push_back({std::string(member), MenuNamed(name)});
  return *this;
}

RefreshRelationBuilder& RefreshRelationBuilder::Triggers(Names variables) {
  AddTo(Prototype().TriggerItems(), ObjectKind::Variable, variables);
  return *this;
}
RefreshRelationBuilder& RefreshRelationBuilder::Refreshes(Names variables) {
  AddTo(Prototype().RefreshItems(), ObjectKind::Variable, variables);
  return *this;
}

UnitRelationBuilder& UnitRelationBuilder::Unit(std::string_view unit) {
  Prototype().SetUnitVariable(VariableNamed(unit));
  return *this;
}
UnitRelationBuilder& UnitRelationBuilder::Dependents(Names variables) {
  AddTo(Prototype().DependentItems(), ObjectKind::Variable, variables);
  return *this;
}

WriteAsOneBuilder& WriteAsOneBuilder::Members(Names variables) {
  for (const std::string_view name : variables)
    Prototype().Items().push_back({VariableNamed(name), {}});
  return *this;
}

}  // namespace ZAFHartTypes::dtmkit
