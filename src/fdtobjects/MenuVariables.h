#pragma once

#include <unordered_set>

#include "ddobjects/Menu.h"
#include "interfaces/IDDComponents.h"
#include "interfaces/IDDKernel.h"

namespace ZAFHartLib {

// An item that shows its value.
ZAFHartTypes::MenuItem ShownItem(const ZAFHartTypes::Definition& definition, bool readOnly = false);

// The database holds an object of that name and kind.
bool IsStored(ZAFHartTypes::IDDComponents& components, const ZAFHartTypes::Definition& definition);

// Collects the variables that can be reached from menus, each once: the readable ones that are not
// library-held, as read-only items.
class MenuVariables {
 public:
  MenuVariables(ZAFHartTypes::IDDKernel& kernel, ZAFHartTypes::IDDComponents& components)
      : kernel_(kernel), components_(components) {}

  // Takes the items of a menu as they are.
  void AddItemsOf(const ZAFHartTypes::Definition& menu);
  // Takes the variables of a menu, of the menus and edit displays in it, and so on. A menu that the
  // database does not hold has none.
  void CollectFrom(const ZAFHartTypes::Definition& menu);

  ZAFHartTypes::MenuItems Take() { return std::move(items_); }

 private:
  using Names = std::unordered_set<ZAFHartTypes::TextKey, ZAFHartTypes::TextKeyHash>;

  void CollectItem(const ZAFHartTypes::Definition& item);
  void CollectVariable(const ZAFHartTypes::Definition& definition);
  void CollectEditDisplay(const ZAFHartTypes::Definition& definition);
  void CollectGroup(const ZAFHartTypes::Definition& definition);

  ZAFHartTypes::IDDKernel& kernel_;
  ZAFHartTypes::IDDComponents& components_;
  ZAFHartTypes::MenuItems items_;
  Names collected_;
  Names visited_;  // menus may refer to one another in a circle
};

}  // namespace ZAFHartLib
