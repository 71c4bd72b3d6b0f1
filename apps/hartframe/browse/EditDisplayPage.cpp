#include "hartframe/browse/EditDisplayPage.h"

#include "hartframe/browse/GroupPage.h"
#include "hartframe/menus/MenuPath.h"

namespace hartframe::browse {

using ZAFHartTypes::EditDisplay;
using ZAFHartTypes::EditDisplayItems;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::Variable;

std::shared_ptr<EditDisplay> EditDisplayPage::Current() {
  return Frame().Kernel().GetEditDisplay(item_.definition);
}

std::string EditDisplayPage::Label() {
  return MultilingualLabel(*Current());
}

std::vector<PageItem> EditDisplayPage::Items() {
  const auto display = Current();
  std::vector<PageItem> items;
  for (const auto& shown : EditDisplayItems(display->DisplayItems()))
    items.push_back({shown.definition, true});
  for (const auto& edited : EditDisplayItems(display->EditItems()))
    items.push_back({edited.definition, item_.readOnly});
  return items;
}

std::unique_ptr<Page> EditDisplayPage::Open(const PageItem& item) {
  if (item.definition.Kind() != ObjectKind::WriteAsOne) return nullptr;
  return GroupPage::Start(Frame(), item, item_.definition);
}

void EditDisplayPage::Enter(std::shared_ptr<Variable>& field) {
  Frame().Kernel().ExecuteEditDisplay(Current(), field, true);
}

void EditDisplayPage::Leave(std::shared_ptr<Variable>& field) {
  Frame().Kernel().ExecuteEditDisplay(Current(), field, false);
}

bool EditDisplayPage::Close() {
  auto& kernel = Frame().Kernel();
  dynamic_cast<ZAFHartTypes::IDDKernel2&>(kernel).AsyncExecuteMenu(kernel.GetMenu(menu_), Current(),
                                                                   false);
  return true;
}

}  // namespace hartframe::browse
