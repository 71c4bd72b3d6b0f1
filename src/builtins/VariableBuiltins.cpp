// The method's variables, by name and as the one that an action is run for.

#include "builtins/CDDBuiltinLib.h"
#include "types/Failure.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

// In the order in which an action is looked for.
constexpr ActionList kActionLists[] = {ActionList::PreEdit,  ActionList::PreRead,
                                       ActionList::PreWrite, ActionList::PostEdit,
                                       ActionList::PostRead, ActionList::PostWrite};

constexpr std::string_view kNaN = "___ZAF___NaN";

bool Names(const DefinitionList& methods, std::string_view name) {
  for (const Definition& method : methods) {
    if (method.Name() == name) return true;
  }
  return false;
}

}  // namespace

std::shared_ptr<Variable> CDDBuiltinLib::GetMethodVariable(const std::string& name) {
  return GetMethodVariable(Definition::Define(name, ObjectKind::Variable));
}

std::shared_ptr<Variable> CDDBuiltinLib::GetMethodVariable(const Definition& definition) {
  if (definition.Name() == kNaN) {
    auto notANumber = std::make_shared<Variable>(definition);
    notANumber->SetValue(NaNValue());
    return notANumber;
  }
  if (!IsDefined(definition)) {
    throw Failure(ErrorNumber::NotImplemented, "CDDBuiltinLib",
                  "The method uses the variable \"" + definition.Name() +
                      "\", which the device description does not define.");
  }
  const auto database = Database();
  const bool isKeptByCaller = database->KeepsForMethod(definition);
  auto variable = database->ReadForMethod(definition);
  Touched* touched = touched_.Find(definition.Key());
  if (!touched) {
    touched_.Add(definition.Key(),
                 {variable->Definition(), isKeptByCaller ? variable->Copy() : nullptr});
  } else if (!isKeptByCaller) {
    *touched = {variable->Definition(), nullptr};  // a method that this one has run saved it
  }
  if (!variableIds_.Contains(variable->Definition())) variableIds_.Add(variable->Definition());
  return variable;
}

// False after telling the user that there is no such variable.
bool CDDBuiltinLib::IsDefined(const Definition& definition) {
  const auto stored = Database()->ReadObject(definition);
  if (stored && stored->Kind() == ObjectKind::Variable) return true;
  FailMethod(idErrVarNameNotDefined, {{"s", definition.Name()}});
  return false;
}

template <typename Action>
bool CDDBuiltinLib::Attempt(Action action) {
  try {
    action();
    return true;
  } catch (const Failure& failure) {
    const bool isOver =
        failure.Number() == ErrorNumber::Cancelled || failure.Number() == ErrorNumber::ObjectNotSet;
    if (isOver) ProcessAbort();
    return false;
  }
}

bool CDDBuiltinLib::Assign(const std::string& name, const std::function<Variant()>& value) {
  return Attempt([&] {
    const auto variable = GetMethodVariable(name);
    AssignTo(*variable, value());
  });
}

bool CDDBuiltinLib::AssignVar(const std::string& destination, const std::string& source) {
  return Assign(destination, [&] { return GetMethodVariable(source)->Value(); });
}

bool CDDBuiltinLib::AssignText(const Variant& name, const Variant& text) {
  return Attempt([&] {
    const Variant value = text.ToText();
    AssignTo(*GetMethodVariable(name.ToText()), value);
  });
}

void CDDBuiltinLib::AssignTo(const Variable& variable, const Variant& value) {
  if (Touched* touched = touched_.Find(variable.Definition().Key())) touched->isAssigned = true;
  Database()->WriteValue(variable.Definition(), value);
}

template <typename Number>
Number CDDBuiltinLib::NamedValue(const std::string& name, Number (Variant::*convert)() const) {
  Number number{};
  Attempt([&] { number = (GetMethodVariable(name)->Value().*convert)(); });
  return number;
}

double CDDBuiltinLib::FloatValue(const std::string& name) {
  return NamedValue(name, &Variant::ToDouble);
}
std::int16_t CDDBuiltinLib::IntValue(const std::string& name) {
  return NamedValue(name, &Variant::ToShort);
}
std::int32_t CDDBuiltinLib::LongValue(const std::string& name) {
  return NamedValue(name, &Variant::ToLong);
}

// --- the variable that an action is run for ---

std::shared_ptr<Variable> CDDBuiltinLib::CurrentVariable() const {
  return currentObject_ ? currentObject_->MakeVariable() : nullptr;
}

bool CDDBuiltinLib::CheckContext() {
  const auto variable = CurrentVariable();
  if (!variable) return false;
  for (const ActionList list : kActionLists) {
    if (IsActionOf(list)) return true;
  }
  FailMethod(idErrWrongContext, {});
  return false;
}

bool CDDBuiltinLib::IsActionOf(ActionList list) const {
  return Names(CurrentVariable()->Actions(list), methodName_);
}

template <typename Number>
Number CDDBuiltinLib::CurrentValue(Number (Variant::*convert)() const) {
  Number number{};
  if (!CheckContext()) return number;
  Attempt([&] { number = (CurrentVariable()->Value().*convert)(); });
  return number;
}

double CDDBuiltinLib::Fgetval() {
  return CurrentValue(&Variant::ToDouble);
}
std::int16_t CDDBuiltinLib::Igetval() {
  return CurrentValue(&Variant::ToShort);
}
std::int32_t CDDBuiltinLib::Lgetval() {
  return CurrentValue(&Variant::ToLong);
}

// Not a change by the user, and never sent from here: that would run the same action again. What
// the user has typed stays to be written when an action after the edit corrects it.
template <typename Number>
Number CDDBuiltinLib::SetCurrentValue(Number value) {
  if (!CheckContext()) return 0;
  const auto variable = CurrentVariable();
  const auto database = Database();
  const Definition& definition = variable->Definition();
  const bool isTyped = IsActionOf(ActionList::PostEdit) && variable->ToBeWritten();
  database->WriteValueLocally(definition, value);
  database->SetVariableToBeWritten(definition, isTyped);
  ForgetKept(definition);
  if (const auto stored = database->ReadObject(definition)) {
    variable->CopyFrom(*stored->MakeVariable());
    variable->ForgetChanges();  // they are stored
  }
  return value;
}

double CDDBuiltinLib::Fsetval(double value) {
  return SetCurrentValue(value);
}
std::int16_t CDDBuiltinLib::Isetval(std::int16_t value) {
  return SetCurrentValue(value);
}
std::int32_t CDDBuiltinLib::Lsetval(std::int32_t value) {
  return SetCurrentValue(value);
}

// --- ids and saving ---

std::int16_t CDDBuiltinLib::VARID(const std::string& name) {
  const auto definition = Definition::Define(name, ObjectKind::Variable);
  if (!IsDefined(definition)) return static_cast<std::int16_t>(CommResult::NotInDD);
  GetMethodVariable(definition);
  return static_cast<std::int16_t>(variableIds_.IndexOf(definition));
}

std::int32_t CDDBuiltinLib::SaveValues() {
  DefinitionList variables;
  for (const auto& [key, variable] : touched_) variables.Add(variable.definition);
  Database()->SaveValues(variables);
  touched_.Clear();
  if (currentObject_) {
    if (const auto stored = Database()->ReadObject(currentObject_->ObjectDefinition())) {
      currentObject_ = stored;
    }
  }
  return static_cast<std::int32_t>(CommResult::Success);
}

bool CDDBuiltinLib::GetDictionaryString(const std::string& /*name*/, std::string& /*text*/) {
  throw Failure(ErrorNumber::NotImplemented, "CDDBuiltinLib.GetDictionaryString");
}

// --- the end of the method ---

// The variable's value is not to be undone.
void CDDBuiltinLib::ForgetKept(const Definition& definition) {
  const Touched* touched = touched_.Find(definition.Key());
  if (!touched) return;
  if (!touched->before) Database()->SaveValues({definition});
  touched_.Remove(definition.Key());
}

void CDDBuiltinLib::RestoreTouched() {
  const auto database = Database();
  for (const auto& [key, variable] : touched_) {
    const auto& before = variable.before;
    if (before && variable.isAssigned && database->KeepsForMethod(variable.definition)) {
      IgnoreFailures([&] { database->Restore(before); });
    } else if (!before && variable.isAssigned) {
      database->RestoreValues({variable.definition});
    } else if (!before) {
      database->SaveValues({variable.definition});
    }
  }
}

void CDDBuiltinLib::WriteBackCurrentVariable() {
  const auto variable = CurrentVariable();
  if (!variable || variable->Changes() == 0) return;
  const auto database = Database();
  const Definition& definition = variable->Definition();
  const auto stored = database->ReadObject(definition);
  if (!stored || variable->HasSameState(*stored->MakeVariable())) return;
  const bool hasNewValue = (variable->Changes() & Variable::kValue) != 0;
  const Variant value = variable->Value();
  database->WriteObject(variable);
  if (hasNewValue) database->WriteValue(definition, value);
  database->SetVariableToBeWritten(definition, false);
  database->SetVariableAvailable(definition, false);
  model_.Kernel()->ReadVariable(definition);
}

}  // namespace ZAFHartLib
