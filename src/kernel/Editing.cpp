// Entering and leaving a variable's field, as menus, edit displays and groups have it in common.

#include "kernel/EditedValue.h"
#include "kernel/KernelTemplates.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

// Pre-edit actions run once per edit session of a variable.
bool CHARTKernel::BeginsEdit(const Definition& variable) {
  if (editedVariable_.IsSameAs(variable)) return false;
  editedVariable_ = variable;
  return true;
}

void CHARTKernel::EnterField(const std::shared_ptr<Variable>& field, PreEdit preEdit) {
  const Definition& definition = field->Definition();
  if (!BeginsEdit(definition)) return;
  const auto variable = ReadVariable(definition);
  if (variable != field) field->CopyFrom(*variable);
  if (preEdit == PreEdit::Yes) ExecuteActions(variable->PreEditActions(), field);
}

void CHARTKernel::EndEdit(const std::shared_ptr<Variable>& field) {
  ExecuteActions(GetVariable(field->Definition())->PostEditActions(), field);
  ExecuteRelations(field->Definition());
}

// Stores a value that the user has given when the variable accepts it; otherwise the stored value
// stands and the error is recorded. True when it is accepted.
bool CHARTKernel::TakeEditedValue(const std::shared_ptr<Variable>& field, const Variant& value) {
  const Definition& definition = field->Definition();
  const auto variable = GetVariable(definition);
  Database()->SetVariableError(definition, 0, "");
  if (variable->CheckValue(value, true)) {
    field->SetValue(value);
    Database()->WriteValue(definition, value);
    return true;
  }
  Database()->SetVariableError(definition, static_cast<std::int32_t>(ItemIndex::NotWritable),
                               RefusalText(*variable, Gui()->LanguageID()));
  Show(Find<Variable>(definition));
  return false;
}

}  // namespace ZAFHartLib
