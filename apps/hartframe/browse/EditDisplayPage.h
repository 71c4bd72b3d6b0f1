#pragma once

#include "ddobjects/EditDisplay.h"
#include "hartframe/browse/Page.h"

namespace hartframe::browse {

// An edit display that was entered from a menu: variables that are only shown, then variables and
// groups to be edited.
class EditDisplayPage : public Page {
 public:
  EditDisplayPage(Session& session, const PageItem& item, const ZAFHartTypes::Definition& menu)
      : Page(session), item_(item), menu_(menu) {}

  std::string Label() override;
  std::vector<PageItem> Items() override;
  std::unique_ptr<Page> Open(const PageItem& item) override;
  void Enter(std::shared_ptr<ZAFHartTypes::Variable>& field) override;
  void Leave(std::shared_ptr<ZAFHartTypes::Variable>& field) override;
  bool Close() override;

 private:
  std::shared_ptr<ZAFHartTypes::EditDisplay> Current();

  const PageItem item_;
  const ZAFHartTypes::Definition menu_;
};

}  // namespace hartframe::browse
