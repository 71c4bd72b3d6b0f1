#include "gui/CGUIObj.h"

#include <utility>

#include "ddobjects/Method.h"
#include "ddobjects/Variable.h"
#include "platform/ForeignCall.h"
#include "platform/Platform.h"
#include "settings/Interval.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::DDObject;
using ZAFHartTypes::Definition;
using ZAFHartTypes::DefinitionList;
using ZAFHartTypes::IDDDTMGUI;
using ZAFHartTypes::IGuiCont2;
using ZAFHartTypes::LifeSignalCode;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::SignalObject;

constexpr platform::TickCount kLifeSignalInterval = 100;  // ms

bool RunsHere(const IGuiCont2& container) {
  bool here = false;
  platform::IgnoreFailures([&] {
    here = platform::CallForeign("IGuiCont2", [&] {
      return container.hAppInstance() == platform::ApplicationInstance() &&
             container.ThreadID() == platform::ThreadId();
    });
  });
  return here;
}

// New definitions in place of another thread's; those of no kind are dropped.
DefinitionList NewDefinitions(const DefinitionList& foreign) {
  DefinitionList copy;
  for (const Definition& definition : foreign) {
    if (definition.Kind() == ObjectKind::Undefined) continue;
    copy.Add(Definition::Define(definition.Name(), definition.Kind()));
  }
  return copy;
}

void Append(DefinitionList& list, const DefinitionList& more) {
  for (const Definition& definition : more) list.Add(definition);
}

bool SameState(DDObject& told, DDObject& current) {
  if (const auto variable = current.MakeVariable()) {
    const auto before = told.MakeVariable();
    return before && before->HasSameState(*variable);
  }
  const auto before = told.MakeMethod();
  return before && before->HasSameState(*current.MakeMethod());
}

// The state to remember: objects other than variables are the stored ones and have to be copied.
std::shared_ptr<DDObject> PresentState(const std::shared_ptr<DDObject>& object) {
  auto state = object->ComputeAttributes();
  return state == object ? object->GetCopy() : state;
}

}  // namespace

void CGUIObj::SetGuiControl(std::shared_ptr<IDDDTMGUI> control) {
  DisConnect();
  control_ = std::move(control);
  container_ = dynamic_cast<IGuiCont2*>(control_.get());
  sameProcess_ = container_ && RunsHere(*container_);
}

void CGUIObj::DisConnect() {
  objects_.clear();
  refreshList_.Clear();
  observedList_.Clear();
  container_ = nullptr;
  control_.reset();
}

bool CGUIObj::IsNewObject(const std::shared_ptr<DDObject>& object) {
  if (object->Kind() != ObjectKind::Variable && object->Kind() != ObjectKind::Method) return false;
  std::shared_ptr<DDObject>& told = objects_[object->ObjectDefinition().Key()];
  if (told && SameState(*told, *object)) return false;
  told = PresentState(object);
  return true;
}

DefinitionList CGUIObj::CollectFromControl(Collect collect) const {
  DefinitionList list;
  platform::IgnoreFailures(
      [&] { platform::CallForeign("IGuiCont2", [&] { (container_->*collect)(list); }); });
  return sameProcess_ ? list : NewDefinitions(list);
}

void CGUIObj::CollectRefreshData(DefinitionList& dynData) {
  if (!container_) return;
  refreshList_ = CollectFromControl(&IGuiCont2::CollectRefreshData);
  Append(dynData, refreshList_);
  Append(dynData, observedList_);
}

void CGUIObj::CollectObservedData() {
  if (container_) observedList_ = CollectFromControl(&IGuiCont2::CollectObservedData);
}

void CGUIObj::AsyncReadVariableProgress(const Definition& definition) {
  for (const DefinitionList* list : {&refreshList_, &observedList_}) {
    if (container_ && list->Contains(definition)) {
      control_->LifeSignal(LifeSignalCode::Waiting, {});
    }
  }
}

void CGUIObj::LifeSignal(LifeSignalCode code, const SignalObject& object) {
  const bool atOnce = code == LifeSignalCode::ExchangeFinished || !container_;
  if (atOnce || IntervalElapsed(lastLifeSignal_, kLifeSignalInterval)) {
    control_->LifeSignal(code, object);
  }
}

}  // namespace ZAFHartLib
