#include "hartframe/browse/Side.h"

#include "hartframe/values/Reading.h"

namespace hartframe::browse {

using ZAFHartTypes::Definition;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::Variant;

Side::Side(Session& session, DataSetPair* pair, Screen& screen, ISideOwner& owner)
    : session_(session),
      screen_(screen),
      owner_(owner),
      messages_(session, screen),
      pages_(session, pair),
      editing_(session, screen),
      control_(std::make_shared<FrameControl>(*this)) {
  auto& gui = session_.Gui();
  control_->SetComponentModel(session_.Components().shared_from_this());
  control_->SetIsOnline(!session_.IsOffline());
  gui.RegisterCtrl(control_);
  gui.SetActiveControl(control_);
  gui.SetMessageControl(control_);
  pages_.Push(MakeStartPage(session_));
}

Side::~Side() {
  control_->Detach();
  ZAFHartTypes::IgnoreFailures([this] { session_.Gui().UnregisterCtrl(control_); });
}

void Side::OnShown(const std::shared_ptr<ZAFHartTypes::DDObject>& object) {
  editing_.OnShown(*object);
  owner_.OnChanged();
}

void Side::OnExchange(bool ended) {
  if (ended) owner_.OnChanged();
  screen_.Redraw();
  screen_.DrawSoon();
}

Variant Side::EditedValue(const Definition& object) {
  return editing_.EditedValue(object);
}

std::int32_t Side::ShowMessage(ZAFHartTypes::UserMessage& message) {
  return messages_.Show(message);
}

// What decides about an item comes before it. Live values are read again each time. The offline
// side of a pair asks no device, the other one for what is shown of either.
void Side::CollectShown(ZAFHartTypes::DefinitionList& variables) {
  if (session_.IsOffline()) return;
  for (const Row& row : owner_.Shown()) {
    const Definition& definition = row.item.definition;
    for (const Definition& condition : UnreadConditions(session_, definition))
      variables.Add(condition);
    if (definition.Kind() != ObjectKind::Variable) continue;
    const auto variable = session_.Variable(definition);
    if (variable->Attributes().IsDynamic() && variable->Available())
      session_.Database().SetVariableAvailable(definition, false);
    variables.Add(definition);
  }
}

}  // namespace hartframe::browse
