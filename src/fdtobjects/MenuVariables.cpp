#include "fdtobjects/MenuVariables.h"

#include "types/Failure.h"

namespace ZAFHartLib {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::Definition;
using ZAFHartTypes::EditDisplayItem;
using ZAFHartTypes::MenuItem;
using ZAFHartTypes::MenuQualifier;
using ZAFHartTypes::ObjectKind;

MenuItem ShownItem(const Definition& definition, bool readOnly) {
  MenuItem item(definition, readOnly);
  item.SetQualifier(MenuQualifier::DisplayValue, true);
  return item;
}

bool IsStored(ZAFHartTypes::IDDComponents& components, const Definition& definition) {
  const auto database = components.DDWorkerDB();
  if (!database || !definition) return false;
  const auto object = database->ReadObject(definition);
  return object && object->Kind() == definition.Kind();
}

// Lists are walked over a copy: computing a menu, display or group anew replaces its items.
void MenuVariables::AddItemsOf(const Definition& menu) {
  if (!IsStored(components_, menu)) return;
  const auto items = kernel_.GetMenu(menu)->Items();
  for (MenuItem item : items) {
    if (!collected_.insert(item.Definition().Key()).second) continue;
    item.SetDDObject(nullptr);
    items_.Add(std::move(item));
  }
}

void MenuVariables::CollectFrom(const Definition& menu) {
  if (!visited_.insert(menu.Key()).second || !IsStored(components_, menu)) return;
  const auto items = kernel_.GetMenu(menu)->Items();
  for (const MenuItem& item : items) CollectItem(item.Definition());
}

void MenuVariables::CollectItem(const Definition& item) {
  switch (item.Kind()) {
    case ObjectKind::Variable:
      return CollectVariable(item);
    case ObjectKind::Menu:
      return CollectFrom(item);
    case ObjectKind::EditDisplay:
      return CollectEditDisplay(item);
    default:
      return;
  }
}

void MenuVariables::CollectVariable(const Definition& definition) {
  if (collected_.contains(definition.Key()) || !IsStored(components_, definition)) return;
  const auto variable = kernel_.GetVariable(definition);
  if (!variable->CheckHandling(AccessMode::Read) || variable->Attributes().IsLibraryHeld()) return;
  collected_.insert(definition.Key());
  items_.Add(ShownItem(definition, true));
}

void MenuVariables::CollectEditDisplay(const Definition& definition) {
  if (!IsStored(components_, definition)) return;
  const auto display = kernel_.GetEditDisplay(definition);
  auto items = display->DisplayItems();
  items.insert(items.end(), display->EditItems().begin(), display->EditItems().end());
  for (const EditDisplayItem& item : items) {
    if (item.definition.Kind() == ObjectKind::Variable) CollectVariable(item.definition);
    if (item.definition.Kind() == ObjectKind::WriteAsOne) CollectGroup(item.definition);
  }
}

void MenuVariables::CollectGroup(const Definition& definition) {
  if (!IsStored(components_, definition)) return;
  const auto items = kernel_.GetWriteAsOne(definition)->Items();
  for (const auto& item : items) CollectVariable(item.definition);
}

}  // namespace ZAFHartLib
