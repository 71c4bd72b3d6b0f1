// Preparing menus for display, and entering and leaving their items.

#include "fdtobjects/StateSetters.h"
#include "kernel/KernelOperation.h"
#include "kernel/KernelTemplates.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

constexpr int kUnknownItem = 1;
constexpr int kDone = 2;

}  // namespace

// The menu's item of that object; nothing, reported, when it has none. Both are required.
std::optional<MenuItem> CHARTKernel::FindMenuItem(const std::shared_ptr<Menu>& menu,
                                                  const std::shared_ptr<DDObject>& object,
                                                  const char* operation) {
  RequireObject(menu, operation);
  RequireObject(object, operation);
  for (const MenuItem& item : menu->Items()) {
    if (item.Definition().IsSameAs(object->ObjectDefinition())) return item;
  }
  Report(object, ItemIndex::UnknownMenuItem);
  return std::nullopt;
}

std::shared_ptr<Menu> CHARTKernel::StartMenu(const Definition& definition) {
  return Start(definition, "IDDKernel_StartMenu", MenuReads::Yes);
}

std::shared_ptr<Menu> CHARTKernel::AsyncStartMenu(const Definition& definition) {
  return Start(definition, "IDDKernel2_AsyncStartMenu", MenuReads::No);
}

std::shared_ptr<Menu> CHARTKernel::Start(const Definition& definition, const char* name,
                                         MenuReads reads) {
  constexpr int kStarted = 1;
  KernelOperation operation(*this, name, {{trace_tag::kDef, definition}});
  const auto menu = PrepareMenu(definition, reads);
  Show(menu);
  return operation.Return(menu, kStarted);
}

std::shared_ptr<Menu> CHARTKernel::PrepareMenu(const Definition& definition, MenuReads reads) {
  const auto menu = GetMenu(definition);
  // By position: preparing an item may compute the menu anew.
  for (std::size_t position = 1; position <= menu->Items().Count(); ++position) {
    const Definition item = menu->Items().Item(position).Definition();
    const auto object = PrepareItem(item, reads);
    if (object && position <= menu->Items().Count()) {
      menu->Items().Item(position).SetDDObject(object);
    }
  }
  return menu;
}

std::shared_ptr<DDObject> CHARTKernel::PrepareItem(const Definition& definition, MenuReads reads) {
  switch (definition.Kind()) {
    case ObjectKind::Variable: {
      const auto variable = GetVariable(definition);
      const bool isRead = variable->Validity() && reads == MenuReads::Yes;
      return isRead ? ReadVariable(definition) : variable;
    }
    case ObjectKind::Menu:
      return GetMenu(definition);
    case ObjectKind::EditDisplay:
      return GetEditDisplay(definition);
    case ObjectKind::Method:
      return GetMethod(definition);
    default:
      return nullptr;
  }
}

void CHARTKernel::ExecuteMenu(const std::shared_ptr<Menu>& menu,
                              const std::shared_ptr<DDObject>& object, bool isEntered) {
  constexpr const char* kOperation = "IDDKernel_ExecuteMenu";
  KernelOperation operation(*this, kOperation,
                            {{trace_tag::kMenu, menu},
                             {trace_tag::kObj, object},
                             {trace_tag::kIsEntered, Variant(isEntered)}});
  const auto found = FindMenuItem(menu, object, kOperation);
  if (!found) return operation.Release(kUnknownItem);
  const Definition item = found->Definition();
  const bool isReadOnly = found->IsReadOnly();
  switch (item.Kind()) {
    case ObjectKind::Variable:
      ExecuteVariableItem(RequireView<Variable>(object, kOperation), isReadOnly, isEntered);
      break;
    case ObjectKind::Menu:
      ExecuteSubMenu(item, isReadOnly, isEntered);
      break;
    case ObjectKind::EditDisplay:
      ExecuteEditDisplayItem(RequireView<EditDisplay>(object, kOperation), isEntered);
      break;
    case ObjectKind::Method:
      ExecuteMethod(item, menu, false);
      break;
    default:
      break;
  }
  operation.Release(kDone);
}

void CHARTKernel::AsyncExecuteMenu(const std::shared_ptr<Menu>& menu,
                                   const std::shared_ptr<DDObject>& object, bool isEntered) {
  constexpr const char* kOperation = "IDDKernel2_AsyncExecuteMenu";
  KernelOperation operation(*this, kOperation,
                            {{trace_tag::kMenu, menu},
                             {trace_tag::kObj, object},
                             {trace_tag::kIsEntered, Variant(isEntered)}});
  RequireObject(object, kOperation);
  if (object->Kind() != ObjectKind::Menu || !isEntered) {
    ExecuteMenu(menu, object, isEntered);
    return operation.Release(kDone);
  }
  const auto found = FindMenuItem(menu, object, kOperation);
  if (!found) return operation.Release(kUnknownItem);
  const Definition item = found->Definition();
  SetSubMenuReadOnly(item, found->IsReadOnly());
  AsyncStartMenu(item);
  operation.Release(kDone);
}

void CHARTKernel::ExecuteVariableItem(const std::shared_ptr<Variable>& field, bool isReadOnly,
                                      bool isEntered) {
  if (isEntered) {
    EnterField(field, isReadOnly ? PreEdit::No : PreEdit::Yes);
  } else if (!isReadOnly) {
    LeaveMenuField(field);
  }
}

void CHARTKernel::LeaveMenuField(const std::shared_ptr<Variable>& field) {
  const Definition& definition = field->Definition();
  const Variant value = Gui()->GetObjectValue(field);
  const auto variable = Stored<Variable>(definition, "IDDKernel_ExecuteMenu");
  if (value.IsNull() && !variable->ToBeWritten()) return;
  if (value.IsNull()) {
    Database()->SetVariableError(definition, 0, "");
    Database()->WriteValue(definition, variable->Value());
  } else {
    TakeEditedValue(field, value);
  }
  EndEdit(field);
  WriteChangesAtOnce();
  const auto stored = Stored<Variable>(definition, "IDDKernel_ExecuteMenu");
  if (!stored->ErrorText().empty()) {
    Database()->SetVariableAvailable(definition, false);
    Database()->SetVariableToBeWritten(definition, false);
    Show(model_.Kernel()->ReadVariable(definition));
  }
  SetDataSetState(*Database(), DataSetState::ValidModified);
  SetStorageState(*Database(), false);
}

// In synchronous mode what the edit and its actions have changed goes to the device.
void CHARTKernel::WriteChangesAtOnce() {
  const auto extension = std::dynamic_pointer_cast<IDataBaseExtension>(Database());
  if (!extension || !extension->SynchronousMode()) return;
  for (const auto& object : Database()->NewEnum()) {
    const auto variable = ViewOf<Variable>(object);
    if (!variable || !variable->ToBeWritten()) continue;
    const Variant value = variable->Value();
    WriteVariable(variable->Definition(), value);
  }
}

void CHARTKernel::ExecuteSubMenu(const Definition& definition, bool isReadOnly, bool isEntered) {
  if (isEntered) {
    SetSubMenuReadOnly(definition, isReadOnly);
    StartMenu(definition);
  } else {
    Gui()->HideObject(Stored<Menu>(definition, "IDDKernel_ExecuteMenu"));
  }
}

void CHARTKernel::SetSubMenuReadOnly(const Definition& definition, bool isReadOnly) {
  const auto menu = GetMenu(definition);
  menu->SetIsReadOnly(isReadOnly);
  Store(menu);
}

void CHARTKernel::ExecuteEditDisplayItem(const std::shared_ptr<EditDisplay>& field,
                                         bool isEntered) {
  const Definition definition = field->Definition();
  if (isEntered) {
    const auto started = StartEditDisplay(definition);
    if (started != field) field->CopyFrom(*started);
    return;
  }
  ExecuteActions(field->PostEditActions(), field);
  Gui()->HideObject(Stored<EditDisplay>(definition, "IDDKernel_ExecuteMenu"));
}

}  // namespace ZAFHartLib
