#pragma once

#include <optional>

#include "ddobjects/Relations.h"
#include "hartframe/browse/Page.h"

namespace hartframe::browse {

// A group of an edit display whose variables are written as one: each has to be looked at before it
// can be left.
class GroupPage : public Page {
 public:
  static std::unique_ptr<GroupPage> Start(Session& session, const PageItem& item,
                                          const ZAFHartTypes::Definition& display);

  std::string Label() override;
  std::vector<PageItem> Items() override;
  void Enter(std::shared_ptr<ZAFHartTypes::Variable>& field) override;
  void Leave(std::shared_ptr<ZAFHartTypes::Variable>& field) override;
  bool Close() override;
  void GiveUp() override;
  bool MarksChecked() const override { return true; }

 private:
  struct Before {
    ZAFHartTypes::Definition definition;
    std::optional<ZAFHartTypes::Variant> pending;  // value that was to be written already
  };
  GroupPage(Session& session, const PageItem& item, const ZAFHartTypes::Definition& display)
      : Page(session), item_(item), display_(display) {}
  std::shared_ptr<ZAFHartTypes::WriteAsOne> Current();

  const PageItem item_;
  const ZAFHartTypes::Definition display_;
  std::vector<Before> before_;
};

}  // namespace hartframe::browse
