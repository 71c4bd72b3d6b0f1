#include "gui/ControlList.h"

namespace ZAFHartLib {

using ZAFHartTypes::IDDDTMGUI;

void ControlList::Add(std::shared_ptr<IDDDTMGUI> control) {
  auto entry = std::make_shared<CGUIObj>();
  entry->SetGuiControl(std::move(control));
  auto changed = std::make_shared<Entries>(*entries_);
  changed->push_back(std::move(entry));
  entries_ = std::move(changed);
}

void ControlList::Remove(const std::shared_ptr<IDDDTMGUI>& control) {
  auto remaining = std::make_shared<Entries>();
  for (const auto& entry : *entries_) {
    if (entry->GuiControl() != control) remaining->push_back(entry);
  }
  const auto before = std::exchange(entries_, std::move(remaining));
  for (auto entry = before->rbegin(); entry != before->rend(); ++entry) {
    if ((*entry)->GuiControl() == control) (*entry)->DisConnect();
  }
}

}  // namespace ZAFHartLib
