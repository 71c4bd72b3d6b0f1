#include "ddobjects/Menu.h"

#include <algorithm>

#include "types/Failure.h"

namespace ZAFHartTypes {

MenuItem::MenuItem(const ZAFHartTypes::Definition& definition, bool readOnly)
    : definition_(definition) {
  SetQualifier(MenuQualifier::ReadOnly, readOnly);
}

const MenuItem& MenuItems::Item(std::size_t position) const {
  if (position < 1 || position > Count())
    throw Failure(ErrorNumber::SubscriptOutOfRange, "MenuItems.Item");
  return items_[position - 1];
}

MenuItem& MenuItems::Item(std::size_t position) {
  return const_cast<MenuItem&>(static_cast<const MenuItems&>(*this).Item(position));
}

bool MenuItems::Contains(const ZAFHartTypes::Definition& definition) const {
  return std::any_of(begin(), end(),
                     [&](const MenuItem& item) { return item.Definition().IsSameAs(definition); });
}

void Menu::Assign(const ZAFHartTypes::DDObject& other) {
  if (&other == this) return;
  RequireSameKind(other);
  const auto& from = static_cast<const Menu&>(other);
  TakeStampsFrom(from);
  label_ = from.label_;
  items_ = from.items_;
  isReadOnly_ = from.isReadOnly_;
}

void Menu::DropBindings() {
  ZAFHartTypes::DDObject::DropBindings();
  for (MenuItem& item : items_) item.SetDDObject(nullptr);
}

std::string Menu::Describe(std::int16_t infoLevel) const {
  std::string text = Definition().Describe(infoLevel);
  if (infoLevel <= 1) return text;
  text += " (";
  const char* separator = "";
  for (const MenuItem& item : items_) {
    text.append(separator).append(item.Definition().Name());
    if (item.IsReadOnly()) text += " READ_ONLY";
    separator = ", ";
  }
  return text += ")";
}

}  // namespace ZAFHartTypes
