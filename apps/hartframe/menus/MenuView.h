#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ddobjects/Codes.h"
#include "hartframe/values/VariableRow.h"

namespace hartframe {

// An item of a menu or edit display as it is shown.
struct MenuRow {
  ZAFHartTypes::ObjectKind kind = ZAFHartTypes::ObjectKind::Undefined;
  std::string name;
  std::string label;
  bool readOnly = false;
  bool valid = true;
  std::optional<VariableRow> variable;
  std::vector<MenuRow> members;  // of a group that is written as one
};

// A menu, or an edit display, whose `items` are only shown and whose `editItems` can be edited.
// The root menus stand in one without a name.
struct MenuView {
  ZAFHartTypes::ObjectKind kind = ZAFHartTypes::ObjectKind::Menu;
  std::string name;
  std::vector<std::string> path;  // labels of the steps that lead to it
  std::vector<MenuRow> items;
  std::vector<MenuRow> editItems;
};

// "menu", "method", …; "" for a variable.
std::string KindText(ZAFHartTypes::ObjectKind kind, const Speech& speech);
// What is worth knowing about the item's state, "" when all is well.
std::string StateText(const MenuRow& row, const Speech& speech);

}  // namespace hartframe
