#include "hartframe/browse/MenuPage.h"

#include "hartframe/browse/BrowseTexts.h"
#include "hartframe/browse/EditDisplayPage.h"
#include "hartframe/menus/MenuPath.h"

namespace hartframe::browse {

namespace {

using ZAFHartTypes::Definition;
using ZAFHartTypes::Menu;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::Variable;

ZAFHartTypes::IDDKernel2& Async(Session& session) {
  return dynamic_cast<ZAFHartTypes::IDDKernel2&>(session.Kernel());
}

class StartPage : public Page {
 public:
  using Page::Page;
  std::string Label() override { return texts::kStart; }
  std::vector<PageItem> Items() override {
    std::vector<PageItem> items;
    for (const MenuEntry& root : RootMenus(Frame()))
      items.push_back({root.definition, root.readOnly});
    return items;
  }
  std::unique_ptr<Page> Open(const PageItem& item) override {
    return MenuPage::Start(Frame(), item.definition);
  }
};

}  // namespace

std::unique_ptr<Page> MakeStartPage(Session& session) {
  return std::make_unique<StartPage>(session);
}

std::unique_ptr<MenuPage> MenuPage::Start(Session& session, const Definition& menu) {
  Async(session).AsyncStartMenu(menu);
  return std::unique_ptr<MenuPage>(new MenuPage(session, menu, {}));
}

std::shared_ptr<Menu> MenuPage::Current() {
  return Frame().Kernel().GetMenu(definition_);
}

std::string MenuPage::Label() {
  return MultilingualLabel(*Current());
}

std::vector<PageItem> MenuPage::Items() {
  std::vector<PageItem> items;
  const auto menu = Current();
  for (const auto& item : ZAFHartTypes::MenuItems(menu->Items()))
    items.push_back({item.Definition(), item.IsReadOnly() || menu->IsReadOnly()});
  return items;
}

// Entering an item of another menu comes back without it: its object is asked for.
std::unique_ptr<Page> MenuPage::Open(const PageItem& item) {
  auto& kernel = Frame().Kernel();
  const auto menu = Current();
  if (item.definition.Kind() == ObjectKind::Menu) {
    Async(Frame()).AsyncExecuteMenu(menu, kernel.GetMenu(item.definition), true);
    return std::unique_ptr<Page>(new MenuPage(Frame(), item.definition, definition_));
  }
  if (item.definition.Kind() != ObjectKind::EditDisplay) return nullptr;
  Async(Frame()).AsyncExecuteMenu(menu, kernel.GetEditDisplay(item.definition), true);
  return std::make_unique<EditDisplayPage>(Frame(), item, definition_);
}

void MenuPage::RunMethod(const PageItem& item) {
  Async(Frame()).AsyncExecuteMenu(Current(), Frame().Kernel().GetMethod(item.definition), true);
}

void MenuPage::Enter(std::shared_ptr<Variable>& field) {
  Async(Frame()).AsyncExecuteMenu(Current(), field, true);
}

void MenuPage::Leave(std::shared_ptr<Variable>& field) {
  Async(Frame()).AsyncExecuteMenu(Current(), field, false);
}

bool MenuPage::Close() {
  if (parent_)
    Async(Frame()).AsyncExecuteMenu(Frame().Kernel().GetMenu(parent_), Current(), false);
  else
    Frame().Gui().HideObject(Current());
  return true;
}

}  // namespace hartframe::browse
