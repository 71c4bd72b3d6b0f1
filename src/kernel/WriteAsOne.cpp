// Groups of variables that are edited and written together.

#include "kernel/KernelOperation.h"
#include "kernel/KernelTemplates.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

bool IsMember(const WriteAsOne& group, const Definition& variable) {
  for (const WriteAsOneItem& member : group.Items()) {
    if (member.definition.IsSameAs(variable)) return true;
  }
  return false;
}

}  // namespace

std::shared_ptr<WriteAsOne> CHARTKernel::StartWriteAsOne(const Definition& definition) {
  constexpr int kDone = 1;
  KernelOperation operation(*this, "IDDKernel_StartWriteAsOne", {{trace_tag::kDef, definition}});
  const auto group = GetWriteAsOne(definition);
  group->SetIsEditing(true);
  group->SetIsComplete(false);
  // By position: reading a member may compute the group anew.
  for (std::size_t i = 0; i < group->Items().size(); ++i) {
    const Definition member = group->Items()[i].definition;
    auto variable = GetVariable(member);
    if (variable->Validity()) {
      Database()->SetVariableIsChecked(member, false);
      variable = ReadVariable(member);
    }
    if (i < group->Items().size()) group->Items()[i].variable = variable;
  }
  Show(group);
  return operation.Return(group, kDone);
}

void CHARTKernel::ExecuteWriteAsOne(std::shared_ptr<WriteAsOne>& group,
                                    std::shared_ptr<Variable>& variable, bool isEntered) {
  constexpr const char* kOperation = "IDDKernel_ExecuteWriteAsOne";
  constexpr int kNoMember = 1;
  constexpr int kDone = 2;
  KernelOperation operation(*this, kOperation,
                            {{trace_tag::kWriteAsOne, group},
                             {trace_tag::kVar, variable},
                             {trace_tag::kIsEntered, Variant(isEntered)}});
  RequireObject(group, kOperation);
  RequireObject(variable, kOperation);
  group = GetWriteAsOne(group->Definition());
  if (!IsMember(*group, variable->Definition())) {
    Report(variable, ItemIndex::NotCurrentlyEditable);
    operation.Release(kNoMember);
    return;
  }
  if (isEntered) {
    EnterMember(variable);
  } else {
    LeaveMember(variable);
  }
  CheckComplete(*group);
  Store(group);
  operation.Release(kDone);
}

void CHARTKernel::EnterMember(std::shared_ptr<Variable>& variable) {
  const Definition definition = variable->Definition();
  variable->CopyFrom(*GetVariable(definition));
  variable->SetIsChecked(true);
  Database()->SetVariableIsChecked(definition, true);
  variable = Stored<Variable>(definition, "IDDKernel_ExecuteWriteAsOne");
  Show(variable);
  if (!BeginsEdit(definition)) return;
  ExecuteActions(variable->PreEditActions(), variable);
}

void CHARTKernel::LeaveMember(std::shared_ptr<Variable>& variable) {
  const Definition definition = variable->Definition();
  const Variant value = Gui()->GetObjectValue(variable);
  if (value.IsNull()) return;
  const bool accepted = TakeEditedValue(variable, value);
  if (accepted) {
    variable->SetIsChecked(true);
    EndEdit(variable);
  }
  Database()->SetVariableIsChecked(definition, accepted);
  variable = Stored<Variable>(definition, "IDDKernel_ExecuteWriteAsOne");
  Show(variable);
}

// Complete when every member carries IsChecked; the members behind the first that does not keep the
// variables they are bound to.
void CHARTKernel::CheckComplete(WriteAsOne& group) {
  group.SetIsComplete(true);
  for (WriteAsOneItem& member : group.Items()) {
    member.variable = Stored<Variable>(member.definition, "IDDKernel_ExecuteWriteAsOne");
    if (member.variable->IsChecked()) continue;
    group.SetIsComplete(false);
    return;
  }
}

}  // namespace ZAFHartLib
