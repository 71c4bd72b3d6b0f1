// Refresh and unit relations between variables.

#include "kernel/DependencyFrame.h"
#include "kernel/KernelOperation.h"
#include "kernel/KernelTemplates.h"
#include "kernel/PostingIndex.h"
#include "kernel/ScopedValue.h"
#include "platform/ForeignCall.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

// How a relation's evaluation left it: the variables that it answers to, and whether they stand
// until its attributes go stale.
struct CHARTKernel::Evaluation {
  std::vector<TextKey> triggers;
  bool settled = true;
};

namespace {

constexpr const char* kRefresh = "IDDKernel_ExecuteRefresh";
constexpr const char* kUnit = "IDDKernel_ExecuteUnit";
constexpr int kReEntered = 1;
constexpr int kDone = 2;

using Mark = void (IDDWorkerDB::*)(const Definition&, bool);

// The relation's specifier is being computed.
class SpecifierMark {
 public:
  SpecifierMark(std::shared_ptr<IDDWorkerDB> database, Mark mark, const Definition& relation)
      : database_(std::move(database)), mark_(mark), relation_(relation) {
    ((*database_).*mark_)(relation_, true);
  }
  ~SpecifierMark() {
    IgnoreFailures([this] { ((*database_).*mark_)(relation_, false); });
  }
  SpecifierMark(const SpecifierMark&) = delete;
  SpecifierMark& operator=(const SpecifierMark&) = delete;

 private:
  std::shared_ptr<IDDWorkerDB> database_;
  Mark mark_;
  Definition relation_;
};

std::vector<TextKey> KeysOf(const RelationItemList& items) {
  std::vector<TextKey> keys;
  for (const Definition& item : items) keys.push_back(item.Key());
  return keys;
}

}  // namespace

void CHARTKernel::ExecuteRelations(const Definition& variable) {
  constexpr int kAllDone = 1;
  KernelOperation operation(*this, "IDDKernel_ExecuteRelations", {{trace_tag::kDef, variable}});
  const auto tracking = operation.ShowsLevel() ? nullptr : TrackingDatabase();
  if (tracking && relationIndex_->Count() != relationList_.Count()) {
    relationIndex_->Reset(relationList_.Count());
  }
  // A relation that has kept a context may have to be visited for any variable.
  const auto next = [&](std::size_t from) {
    return tracking && pendingContexts_.IsEmpty() ? relationIndex_->Next(variable.Key(), from)
                                                  : from;
  };
  for (std::size_t i = next(0); i < relationList_.Count(); i = next(i + 1)) {
    const Definition relation = relationList_.Item(i + 1);
    EvaluateRelation(i, relation, variable, tracking.get());
  }
  operation.Release(kAllDone, "IDDKernel_ExecuteRelation");
}

void CHARTKernel::EvaluateRelation(std::size_t position, const Definition& relation,
                                   const Definition& context, const CDDWorkerDB* tracking) {
  if (tracking) relationIndex_->BeginEvaluation(position, {relation.Key()});
  Evaluation evaluation;
  if (relation.Kind() == ObjectKind::RefreshRelation) {
    evaluation = EvaluateRefresh(relation, context);
  } else if (relation.Kind() == ObjectKind::UnitRelation) {
    evaluation = EvaluateUnit(relation, context);
  }
  if (!tracking) return;
  const bool settled = evaluation.settled && !relationIndex_->IsDoubted(position) &&
                       !tracking->HasMissingDependency(relation);
  relationIndex_->Post(position, std::move(evaluation.triggers), {relation.Key()}, settled);
}

void CHARTKernel::ExecuteRefresh(const Definition& relation, const Definition& context) {
  EvaluateRefresh(relation, context);
}

CHARTKernel::Evaluation CHARTKernel::EvaluateRefresh(const Definition& relation,
                                                     const Definition& context) {
  KernelOperation operation(*this, kRefresh,
                            {{trace_tag::kDef, relation}, {trace_tag::kContext, context}});
  if (Database()->IsRefreshInRecursion(relation)) {
    pendingContexts_.Keep(relation, context);
    operation.Release(kReEntered);
    return {{}, false};
  }
  auto view = Stored<RefreshRelation>(relation, kRefresh);
  bool settled = true;
  {
    SpecifierMark mark(Database(), &IDDWorkerDB::SetRefreshInRecursion, relation);
    if (!view->AttributesAvailable()) {
      settled = ComputeSpecifier(view, &IDDDataModel::ComputeRefreshSpecifier);
      view->SetAttributesAvailable(settled);
      Store(view);
    }
  }
  Definition trigger = context;
  if (!view->TriggerItems().Contains(context)) {
    trigger = {};
    for (const Definition& pending : pendingContexts_.Take(relation)) {
      if (!view->TriggerItems().Contains(pending)) continue;
      trigger = pending;
      break;
    }
  }
  if (trigger) {
    const RelationItemList items = view->RefreshItems();
    for (const Definition& item : items) Database()->SetRefresh(item, trigger);
  }
  pendingContexts_.Take(relation);
  operation.Release(kDone);
  return {KeysOf(view->TriggerItems()), settled};
}

void CHARTKernel::ExecuteUnit(const Definition& relation, const Definition& context) {
  EvaluateUnit(relation, context);
}

CHARTKernel::Evaluation CHARTKernel::EvaluateUnit(const Definition& relation,
                                                  const Definition& context) {
  using Input = TraceScope::Input;
  const Input def{trace_tag::kDef, relation};
  const Input given{trace_tag::kContext, context};
  KernelOperation operation =
      context ? KernelOperation(*this, kUnit, {def, given}) : KernelOperation(*this, kUnit, {def});
  if (Database()->IsUnitInRecursion(relation)) {
    pendingContexts_.Keep(relation, context);
    operation.Release(kReEntered);
    return {{}, false};
  }
  auto view = Stored<UnitRelation>(relation, kUnit);
  const Definition remembered = view->UnitVariable();
  bool settled = true;
  {
    SpecifierMark mark(Database(), &IDDWorkerDB::SetUnitInRecursion, relation);
    if (!view->AttributesAvailable()) {
      settled = ComputeSpecifier(view, &IDDDataModel::ComputeUnitSpecifier);
    }
  }
  ApplyUnit(*view, remembered, context);
  pendingContexts_.Take(relation);
  // Computed afresh at every execution.
  view->SetAttributesAvailable(false);
  Store(view);
  operation.Release(kDone);
  return {{view->UnitVariable().Key()}, settled};
}

void CHARTKernel::ApplyUnit(const UnitRelation& relation, const Definition& remembered,
                            const Definition& context) {
  const Definition unit = relation.UnitVariable();
  const auto giveUnit = [&, items = relation.DependentItems()] {
    if (!unit) return;  // no unit variable applies at present
    for (const Definition& item : items) Database()->SetUnit(item, unit);
  };
  const bool changedFromContext = remembered.IsSameAs(context) && !remembered.IsSameAs(unit);
  if (!context || changedFromContext || unit.IsSameAs(context)) {
    giveUnit();
    return;
  }
  for (const Definition& pending : pendingContexts_.Take(relation.ObjectDefinition())) {
    if (!pending.IsSameAs(unit)) continue;
    const auto stored = Find<Variable>(unit);
    if (stored && stored->Available()) {
      giveUnit();
    } else {
      model_.Kernel()->ReadVariable(unit);
    }
    return;
  }
}

// False when the result is out of date as it is finished.
template <typename Relation, typename ComputeOperation>
bool CHARTKernel::ComputeSpecifier(std::shared_ptr<Relation>& relation, ComputeOperation compute) {
  const Definition definition = relation->ObjectDefinition();
  DependencyFrame frame(innermostFrame_, TrackingDatabase(), definition);
  ScopedValue noting(context_.frame, frame.IsNoting() ? &frame : nullptr);
  const auto computedBy = [&](IDDDataModel& model) {
    auto computed = platform::CallForeign("IDDDataModel", [&] {
      return (model.*compute)(*this, *model_.Model(), definition.Name(), relation);
    });
    if (computed) relation = std::move(computed);
  };
  {
    ScopedValue current(context_.current, definition);
    if (deviceModel_) computedBy(*deviceModel_);
  }
  computedBy(*internalModel_);
  return !frame.IsOutdated();
}

}  // namespace ZAFHartLib
