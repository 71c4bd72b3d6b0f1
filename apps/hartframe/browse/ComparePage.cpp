#include "hartframe/browse/ComparePage.h"

#include "hartframe/browse/PairScreenTexts.h"
#include "hartframe/browse/Row.h"
#include "hartframe/dataset/DataSet.h"
#include "hartframe/values/Reading.h"

namespace hartframe::browse {

namespace {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::Definition;
using ZAFHartTypes::Menu;
using ZAFHartTypes::MenuItem;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::Variable;

std::shared_ptr<Menu> MenuOfAll(Session& session, const DataSetPair& pair) {
  const Definition upload = UpDownloadMenu(session);
  const auto all = std::make_shared<Menu>(upload);
  for (const MenuItem& item : session.Kernel().GetMenu(upload)->Items()) {
    if (item.Definition().Kind() == ObjectKind::Variable)
      all->Items().Add(MenuItem(item.Definition()));
  }
  for (const Definition& definition : session.AllVariables(true)) {
    if (pair.IsShared(definition) && !all->Items().Contains(definition))
      all->Items().Add(MenuItem(definition));
  }
  return all;
}

void Execute(Session& session, const std::shared_ptr<Menu>& menu,
             const std::shared_ptr<Variable>& field, bool isEntered) {
  dynamic_cast<ZAFHartTypes::IDDKernel2&>(session.Kernel())
      .AsyncExecuteMenu(menu, field, isEntered);
}

}  // namespace

ComparePage::ComparePage(Session& session, DataSetPair& pair)
    : Page(session), pair_(pair), menu_(MenuOfAll(session, pair)) {}

void ComparePage::ReadDevice() {
  Session& online = pair_.Online();
  ThoroughReader reader(online);
  for (const MenuItem& item : menu_->Items()) {
    const auto variable = online.Variable(item.Definition());
    const bool isUnread = variable->Validity() && !variable->Available() &&
                          !variable->ToBeWritten() && variable->CheckHandling(AccessMode::Read);
    if (!isUnread) continue;
    const auto read = reader.Read(item.Definition());
    if (online.Interrupted() || TroubleOf(*read) == Trouble::Communication) return;
  }
}

std::vector<ComparedRow> ComparePage::Rows() {
  std::vector<ComparedRow> rows;
  for (const MenuItem& item : menu_->Items()) rows.push_back(CompareNow(pair_, item.Definition()));
  return rows;
}

std::string ComparePage::Label() {
  return differencesOnly_ ? texts::kDifferences : texts::kComparison;
}

std::vector<PageItem> ComparePage::Items() {
  std::vector<PageItem> items;
  for (const MenuItem& item : menu_->Items()) {
    const Definition& definition = item.Definition();
    if (differencesOnly_ && !IsDifference(CompareNow(pair_, definition).match)) continue;
    items.push_back({definition});
  }
  return items;
}

void ComparePage::Enter(std::shared_ptr<Variable>& field) {
  Execute(Frame(), menu_, field, true);
}

void ComparePage::Leave(std::shared_ptr<Variable>& field) {
  Execute(Frame(), menu_, field, false);
}

}  // namespace hartframe::browse
