#include "hartframe/ViewControl.h"

#include <algorithm>

#include "ddobjects/Command.h"
#include "interfaces/IDDComponents.h"
#include "interfaces/InternalNames.h"
#include "platform/Platform.h"

namespace hartframe {

namespace {

using ZAFHartTypes::Definition;
using ZAFHartTypes::DefinitionList;
using ZAFHartTypes::LifeSignalCode;
using ZAFHartTypes::ObjectKind;
namespace names = ZAFHartTypes::internal_names;

const Definition& ProgressValue() {
  static const Definition definition =
      Definition::Define(names::kProgressValue, ObjectKind::Variable);
  return definition;
}

const Definition& ProgressTitle() {
  static const Definition definition =
      Definition::Define(names::kProgressTitle, ObjectKind::Variable);
  return definition;
}

}  // namespace

void ViewControl::Watch(std::vector<Definition> variables, platform::Milliseconds interval,
                        Updated updated) {
  watched_ = std::move(variables);
  interval_ = interval;
  updated_ = std::move(updated);
}

void ViewControl::ShowObject(const std::shared_ptr<ZAFHartTypes::DDObject>& object) {
  if (!showsProgress_ || !object->ObjectDefinition().IsSameAs(ProgressValue())) return;
  if (const auto variable = object->MakeVariable()) ShowProgress(*variable);
}

void ViewControl::ShowProgress(const ZAFHartTypes::Variable& progress) {
  std::string title;
  ZAFHartTypes::IgnoreFailures([&] {
    const auto components = ComponentModel();
    const auto database = components ? components->DDWorkerDB() : nullptr;
    const auto entry = database ? database->ReadObject(ProgressTitle()) : nullptr;
    if (entry) title = speech_.Pick(entry->MakeVariable()->Value().ToText());
    console_.Progress(title, progress.Value().ToDouble());
  });
}

void ViewControl::LifeSignal(LifeSignalCode code, const ZAFHartTypes::SignalObject& object) {
  signals_.Check();
  if (code != LifeSignalCode::ExchangeFinished) return;
  const auto* reference = std::get_if<std::shared_ptr<ZAFHartTypes::CommandRef>>(&object);
  if (reference && *reference && (*reference)->Command()) OnExchangeFinished(**reference);
}

void ViewControl::OnExchangeFinished(const ZAFHartTypes::CommandRef& reference) {
  std::vector<Definition> updated;
  for (const auto& item : reference.ReferredTransaction()->Reply()) {
    if (item.IsVariable() && !item.IsInfo() && Watches(item.VariableDefinition()))
      updated.push_back(item.VariableDefinition());
  }
  if (!updated.empty() && updated_) updated_(updated);
}

bool ViewControl::Watches(const Definition& definition) const {
  return std::any_of(watched_.begin(), watched_.end(),
                     [&](const Definition& watched) { return watched.IsSameAs(definition); });
}

std::uint64_t ViewControl::ThreadID() const {
  return platform::ThreadId();
}

std::uintptr_t ViewControl::hAppInstance() const {
  return platform::ApplicationInstance();
}

// The GUI manager reads what is not available: a round begins by saying so of what is watched.
void ViewControl::CollectRefreshData(DefinitionList& dynData) {
  if (watched_.empty()) return;
  const auto components = ComponentModel();
  const auto now = platform::Current().GetClock().Now();
  if (components && now >= nextRound_) {
    nextRound_ = now + interval_;
    for (const Definition& definition : watched_)
      components->DDWorkerDB()->SetVariableAvailable(definition, false);
  }
  for (const Definition& definition : watched_) dynData.Add(definition);
}

}  // namespace hartframe
