#include "hartframe/browse/GroupPage.h"

#include "hartframe/browse/BrowseTexts.h"
#include "hartframe/changes/Changes.h"

namespace hartframe::browse {

using ZAFHartTypes::Definition;
using ZAFHartTypes::Variable;
using ZAFHartTypes::WriteAsOne;

std::unique_ptr<GroupPage> GroupPage::Start(Session& session, const PageItem& item,
                                            const Definition& display) {
  auto& kernel = session.Kernel();
  kernel.ExecuteEditDisplay(kernel.GetEditDisplay(display), kernel.GetWriteAsOne(item.definition),
                            true);
  std::unique_ptr<GroupPage> page(new GroupPage(session, item, display));
  for (const auto& member : page->Items()) {
    const auto variable = session.Variable(member.definition);
    page->before_.push_back({member.definition, {}});
    if (variable->ToBeWritten()) page->before_.back().pending = variable->Value();
  }
  kernel.StartWriteAsOne(item.definition);
  return page;
}

std::shared_ptr<WriteAsOne> GroupPage::Current() {
  return Frame().Kernel().GetWriteAsOne(item_.definition);
}

std::string GroupPage::Label() {
  return texts::kGroup;
}

std::vector<PageItem> GroupPage::Items() {
  std::vector<PageItem> items;
  const auto group = Current();
  for (const auto& member : std::vector(group->Items()))
    items.push_back({member.definition, item_.readOnly});
  return items;
}

void GroupPage::Enter(std::shared_ptr<Variable>& field) {
  auto group = Current();
  Frame().Kernel().ExecuteWriteAsOne(group, field, true);
}

void GroupPage::Leave(std::shared_ptr<Variable>& field) {
  auto group = Current();
  Frame().Kernel().ExecuteWriteAsOne(group, field, false);
}

bool GroupPage::Close() {
  if (item_.readOnly) return true;  // nothing could be changed
  auto& kernel = Frame().Kernel();
  const auto group = Current();
  kernel.ExecuteEditDisplay(kernel.GetEditDisplay(display_), group, false);
  return group->IsComplete();
}

void GroupPage::GiveUp() {
  for (const Before& member : before_) {
    if (member.pending) {
      Frame().Database().WriteValue(member.definition, *member.pending);
    } else {
      GiveUpChange(Frame(), member.definition);
    }
  }
}

}  // namespace hartframe::browse
