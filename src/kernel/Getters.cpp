// The typed getters: an object with current attributes.

#include "interfaces/InternalNames.h"
#include "kernel/CommandIndex.h"
#include "kernel/CycleGuards.h"
#include "kernel/DisplayText.h"
#include "kernel/ErrorHandlerScope.h"
#include "kernel/KernelOperation.h"
#include "kernel/ScopedValue.h"
#include "platform/ForeignCall.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

// What tells the getters of the family apart, beside their guards and the After… steps.
template <typename View>
struct CHARTKernel::Getter {
  const char* operation;
  const char* word;
  std::shared_ptr<View> (IDDDataModel::*compute)(IDDKernel&, IDDComponents&, const std::string&,
                                                 std::shared_ptr<View>);
};

namespace {

constexpr int kCurrent = 1;
constexpr int kComputed = 2;

void LiftRestriction(MenuItem& item) {
  if (!item.Qualifiers().Qualifier(MenuQualifier::Restricted)) return;
  item.SetQualifier(MenuQualifier::Restricted, false);
  item.SetQualifier(MenuQualifier::ReadOnly, false);
}

void Restrict(MenuItem& item) {
  if (item.IsReadOnly()) return;
  item.SetQualifier(MenuQualifier::Restricted, true);
  item.SetQualifier(MenuQualifier::ReadOnly, true);
}

// A variable's attributes start from what the data model's Init… left; the other kinds are computed
// in place.
void BeginComputing(DDObject&) {}
void BeginComputing(Variable& variable) {
  variable.BeginAttributeComputation();
}
void NoteOwnValue(DependencyFrame&, const DDObject&) {}
void NoteOwnValue(DependencyFrame& frame, const Variable& variable) {
  if (variable.ValueWasRead()) frame.NoteOwnValue();
}
void BeginComputing(Menu& menu) {
  for (MenuItem& item : menu.Items()) LiftRestriction(item);
}

Definition InternalVariable(std::string_view name) {
  return Definition::Define(name, ObjectKind::Variable);
}

}  // namespace

template <typename Guard, typename View>
std::shared_ptr<View> CHARTKernel::Get(const Getter<View>& getter, const Definition& definition) {
  KernelOperation operation(*this, getter.operation, {{trace_tag::kDef, definition}});
  operation.Reads(definition, ReadSort::Attributes);
  auto object = Stored<View>(definition, getter.operation);
  if (object->AttributesAvailable()) {
    AfterLookUp(*object);
    return operation.Return(object, kCurrent);
  }
  {
    Guard guard(*this, object);
    if (guard.IsCyclic()) {
      operation.Release(kCurrent);
      return object;
    }
    Compute(getter, guard, object);
  }
  const std::string& name = object->ObjectDefinition().Name();
  operation.Progress(1, [&] { return getter.word + name + " calculated"; });
  operation.Progress(
      2, [&] { return getter.word + name + "=" + object->Describe(operation.InfoLevel()); });
  return operation.Return(object, kComputed);
}

template <typename Guard, typename View>
void CHARTKernel::Compute(const Getter<View>& getter, Guard& guard, std::shared_ptr<View>& object) {
  const Definition definition = object->ObjectDefinition();
  DependencyFrame frame(innermostFrame_, TrackingDatabase(), definition);
  {
    ScopedValue noting(context_.frame, frame.IsNoting() ? &frame : nullptr);
    BeginComputing(*object);
    guard.Run([&] {
      ScopedValue current(context_.current, definition);
      object = ComputedBy(deviceModel_, getter, object);
    });
    guard.Run([&] { object = ComputedBy(internalModel_, getter, object); });
    NoteOwnValue(frame, *object);
    guard.Leave(*object);
    guard.Run([&] { AfterComputing(*object); });
  }
  guard.Run([&] {
    object->SetAttributesAvailable(!frame.IsOutdated());
    Store(object);
  });
  guard.Run([&] { AfterStoring(*object); });
}

template <typename View>
std::shared_ptr<View> CHARTKernel::ComputedBy(const std::shared_ptr<IDDDataModel>& model,
                                              const Getter<View>& getter,
                                              const std::shared_ptr<View>& object) {
  if (!model) {
    throw Failure(ErrorNumber::ObjectNotSet, getter.operation,
                  "The kernel has no data model; InitializeDB creates it.");
  }
  const auto computed = platform::CallForeign("IDDDataModel", [&] {
    return ((*model).*getter.compute)(*this, *model_.Model(), object->ObjectDefinition().Name(),
                                      object);
  });
  if (!computed) {
    throw Failure(
        ErrorNumber::ObjectNotSet, getter.operation,
        "The data model returned nothing for \"" + object->ObjectDefinition().Name() + "\".");
  }
  return computed;
}

std::shared_ptr<Variable> CHARTKernel::GetVariable(const Definition& definition) {
  constexpr Getter<Variable> kGetter{"IDDKernel_GetVariable", "VARIABLE ",
                                     &IDDDataModel::ComputeVarAttrs};
  return Get<VariableGuard>(kGetter, definition);
}
std::shared_ptr<Command> CHARTKernel::GetCommand(const Definition& definition) {
  constexpr Getter<Command> kGetter{"IDDKernel_GetCommand", "COMMAND ",
                                    &IDDDataModel::ComputeCmdAttrs};
  return Get<CommandGuard>(kGetter, definition);
}
std::shared_ptr<Menu> CHARTKernel::GetMenu(const Definition& definition) {
  constexpr Getter<Menu> kGetter{"IDDKernel_GetMenu", "MENU ", &IDDDataModel::ComputeMenuAttrs};
  return Get<NestingGuard>(kGetter, definition);
}
std::shared_ptr<EditDisplay> CHARTKernel::GetEditDisplay(const Definition& definition) {
  constexpr Getter<EditDisplay> kGetter{"IDDKernel_GetEditDisplay", "EDIT_DISPLAY ",
                                        &IDDDataModel::ComputeEditDisplayAttrs};
  return Get<NestingGuard>(kGetter, definition);
}
std::shared_ptr<Method> CHARTKernel::GetMethod(const Definition& definition) {
  constexpr Getter<Method> kGetter{"IDDKernel_GetMethod", "METHOD ",
                                   &IDDDataModel::ComputeMethodAttrs};
  return Get<NestingGuard>(kGetter, definition);
}
std::shared_ptr<WriteAsOne> CHARTKernel::GetWriteAsOne(const Definition& definition) {
  constexpr Getter<WriteAsOne> kGetter{"IDDKernel_GetWriteAsOne", "WRITE_AS_ONE ",
                                       &IDDDataModel::ComputeWriteAsOneSpecifier};
  return Get<NestingGuard>(kGetter, definition);
}
std::shared_ptr<ItemArray> CHARTKernel::GetArray(const Definition& definition) {
  constexpr Getter<ItemArray> kGetter{"IDDKernel_GetArray", "ARRAY ",
                                      &IDDDataModel::ComputeArrayAttrs};
  return Get<NestingGuard>(kGetter, definition);
}
std::shared_ptr<ItemCollection> CHARTKernel::GetCollection(const Definition& definition) {
  constexpr Getter<ItemCollection> kGetter{"IDDKernel_GetCollection", "COLLECTION ",
                                           &IDDDataModel::ComputeCollectionAttrs};
  return Get<NestingGuard>(kGetter, definition);
}

bool CHARTKernel::GetVariableValidity(const Definition& definition) {
  return GetVariable(definition)->Validity();
}
bool CHARTKernel::GetMethodValidity(const Definition& definition) {
  return GetMethod(definition)->IsValid();
}
std::shared_ptr<Variable> CHARTKernel::CalculateVariableType(const Definition& definition) {
  return GetVariable(definition);
}

std::shared_ptr<Command> CHARTKernel::GetSafeCommand(const Definition& definition) {
  ErrorHandlerScope quiet(Gui());
  std::shared_ptr<Command> command;
  IgnoreFailures([&] { command = GetCommand(definition); });
  if (quiet.SawCriticalError()) {
    command = nullptr;
    quiet.PassCriticalErrorOn();
  }
  return command;
}

// The unit of the value. A unit variable that asks for its own unit in turn is taken as it stands;
// one whose data model is at work is the guard's to judge.
void CHARTKernel::AfterComputing(Variable& variable) {
  const Definition source = variable.UnitSource();
  if (!source) return;
  const bool circular = DependencyFrame::Nesting(innermostFrame_, source) > 0 &&
                        !Database()->IsVariableInRecursion(source);
  const auto unit = circular ? Find<Variable>(source) : GetVariable(source);
  if (!unit) return;
  if (context_.frame && CanBeRead(*unit)) context_.frame->Note(source, ReadSort::Value);
  if (!unit->Available()) variable.SetAvailable(false);
  variable.SetUnitText(DisplayText(*unit));
}

// What the request sends without storing, the reply does not store either.
void CHARTKernel::AfterComputing(Command& command) {
  for (const auto& transaction : command.Transactions()) {
    DefinitionList sentOnly;
    for (const DataItem& item : transaction->Request()) {
      if (item.IsVariable() && item.IsInfo()) sentOnly.Add(item.VariableDefinition());
    }
    if (sentOnly.IsEmpty()) continue;
    for (DataItem& item : transaction->Reply()) {
      if (item.IsVariable() && sentOnly.Contains(item.VariableDefinition())) item.SetIsInfo();
    }
  }
}

void CHARTKernel::AfterComputing(Menu&) {
  if (!context_.frame) return;
  for (const auto name : {internal_names::kDataSetLockState, internal_names::kFDTUserLevel}) {
    context_.frame->Note(InternalVariable(name), ReadSort::Attributes);
  }
}

// Searches that went by the array's former elements are out of date.
void CHARTKernel::AfterStoring(ItemArray& array) {
  commandIndex_->ObjectStale(array.Definition().Key());
}

void CHARTKernel::ShowIf(bool valid, DDObject& object) const {
  const auto entry = object.shared_from_this();
  if (valid) {
    Gui()->ShowObject(entry);
  } else {
    Gui()->HideObject(entry);
  }
}

// While the data set is locked, and for an observer, nothing can be changed.
void CHARTKernel::ApplyAccessRestrictions(Menu& menu) {
  const bool restricted = IsAccessRestricted();
  for (MenuItem& item : menu.Items()) {
    if (restricted) {
      Restrict(item);
    } else {
      LiftRestriction(item);
    }
  }
  Store(menu.shared_from_this());
}

bool CHARTKernel::IsAccessRestricted() {
  const Variant kNone(std::int16_t{0});
  bool restricted = false;
  IgnoreFailures([&] {
    const auto lock = Find<Variable>(InternalVariable(internal_names::kDataSetLockState));
    restricted = lock && !(lock->Value() == kNone);
  });
  if (restricted) return true;
  IgnoreFailures([&] {
    const auto level = GetVariable(InternalVariable(internal_names::kFDTUserLevel));
    restricted = level->Value() == kNone;  // observer
  });
  return restricted;
}

}  // namespace ZAFHartLib
