// Edit displays.

#include <algorithm>

#include "kernel/KernelOperation.h"
#include "kernel/KernelTemplates.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

const EditDisplayItem* FindEditItem(const EditDisplay& display, const Definition& definition) {
  for (const EditDisplayItem& item : display.EditItems()) {
    if (item.definition.IsSameAs(definition)) return &item;
  }
  return nullptr;
}

}  // namespace

std::shared_ptr<EditDisplay> CHARTKernel::StartEditDisplay(const Definition& definition) {
  constexpr int kWrongDisplayItem = 1;
  constexpr int kWrongEditItem = 2;
  constexpr int kDone = 3;
  KernelOperation operation(*this, "IDDKernel_StartEditDisplay", {{trace_tag::kDef, definition}});
  const auto display = GetEditDisplay(definition);
  if (!PrepareItems(display, &EditDisplay::DisplayItems, {ObjectKind::Variable})) {
    Report(display, ItemIndex::DisplayItemNotVariable);
    return operation.Return(display, kWrongDisplayItem);
  }
  if (!PrepareItems(display, &EditDisplay::EditItems,
                    {ObjectKind::Variable, ObjectKind::WriteAsOne})) {
    Report(display, ItemIndex::EditItemNotEditable);
    return operation.Return(display, kWrongEditItem);
  }
  ExecuteActions(display->PreEditActions(), display);
  Show(display);
  return operation.Return(display, kDone);
}

// Reads the variables of one of the two lists and keeps their entries in it. False at the first
// item of another kind than those allowed.
bool CHARTKernel::PrepareItems(const std::shared_ptr<EditDisplay>& display, EditItemList list,
                               std::initializer_list<ObjectKind> allowed) {
  const auto items = [&]() -> EditDisplayItems& { return ((*display).*list)(); };
  // By position: reading a variable may compute the display anew.
  for (std::size_t i = 0; i < items().size(); ++i) {
    const Definition item = items()[i].definition;
    if (std::find(allowed.begin(), allowed.end(), item.Kind()) == allowed.end()) return false;
    std::shared_ptr<DDObject> object;
    if (item.Kind() == ObjectKind::WriteAsOne) {
      object = GetWriteAsOne(item);
    } else {
      object = PrepareItem(item, MenuReads::Yes);
    }
    if (i < items().size()) items()[i].object = object;
  }
  return true;
}

void CHARTKernel::ExecuteEditDisplay(const std::shared_ptr<EditDisplay>& display,
                                     const std::shared_ptr<DDObject>& object, bool isEntered) {
  constexpr const char* kOperation = "IDDKernel_ExecuteEditDisplay";
  constexpr int kNotEditable = 1;
  constexpr int kDone = 2;
  KernelOperation operation(*this, kOperation,
                            {{trace_tag::kEdDis, display},
                             {trace_tag::kObj, object},
                             {trace_tag::kIsEntered, Variant(isEntered)}});
  RequireObject(display, kOperation);
  RequireObject(object, kOperation);
  const auto current = GetEditDisplay(display->Definition());
  const EditDisplayItem* found = FindEditItem(*current, object->ObjectDefinition());
  if (!found) {
    Report(object, ItemIndex::NotAnEditItem);
    operation.Release(kNotEditable);
    return;
  }
  const Definition item = found->definition;
  if (item.Kind() == ObjectKind::Variable) {
    const auto field = RequireView<Variable>(object, kOperation);
    if (isEntered) {
      EnterField(field, PreEdit::Yes);
    } else {
      const Variant value = Gui()->GetObjectValue(field);
      if (!value.IsNull()) TakeEditedValue(field, value);
      EndEdit(field);
    }
  } else if (item.Kind() == ObjectKind::WriteAsOne) {
    const auto group = GetWriteAsOne(item);
    if (!isEntered && group->IsComplete()) group->SetIsEditing(false);
    if (!isEntered && !group->IsComplete()) Report(object, ItemIndex::NotAllChecked);
    Store(group);
  }
  operation.Release(kDone);
}

}  // namespace ZAFHartLib
