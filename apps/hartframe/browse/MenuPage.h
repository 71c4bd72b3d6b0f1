#pragma once

#include "ddobjects/Menu.h"
#include "hartframe/browse/Page.h"

namespace hartframe::browse {

// A menu of the DTM. Its values come from the background refresh.
class MenuPage : public Page {
 public:
  // Starts one of the menus that the user begins with.
  static std::unique_ptr<MenuPage> Start(Session& session, const ZAFHartTypes::Definition& menu);

  std::string Label() override;
  std::vector<PageItem> Items() override;
  std::unique_ptr<Page> Open(const PageItem& item) override;
  void RunMethod(const PageItem& item) override;
  void Enter(std::shared_ptr<ZAFHartTypes::Variable>& field) override;
  void Leave(std::shared_ptr<ZAFHartTypes::Variable>& field) override;
  bool Close() override;

 private:
  // `parent`: empty for a menu that was started.
  MenuPage(Session& session, const ZAFHartTypes::Definition& menu,
           const ZAFHartTypes::Definition& parent)
      : Page(session), definition_(menu), parent_(parent) {}
  std::shared_ptr<ZAFHartTypes::Menu> Current();

  const ZAFHartTypes::Definition definition_;
  const ZAFHartTypes::Definition parent_;
};

}  // namespace hartframe::browse
