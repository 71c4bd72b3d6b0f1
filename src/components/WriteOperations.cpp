#include "components/WriteOperations.h"

#include "gui/CLockObject.h"
#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

// Results of an exchange that end a write pass: below -6, -4 to -1, above 0.
bool EndsPass(std::int32_t result) {
  return result < -6 || (result >= -4 && result <= -1) || result > 0;
}

}  // namespace

void WriteChangesOperation::Run() {
  OnFailure restore([this] { EndProgress(); });
  if (ProgressTitle().empty()) SetProgressTitle(ResText(idWriteChanges));
  const MarkedVariables pending = OwnDatabase()->WatchMarked(VariableMark::ToBeWritten);
  {
    Gui()->StopCurrentEditing();
    CLockObject lock;
    lock.SetLock(Gui());
    const auto valuesKeep = OwnDatabase()->SuspendExpiry();
    WriteInPasses(pending);
    MarkSynchronized();
  }
  EndProgress();
  restore.Done();
}

// A variable waits while one that it depends on is still to be written. Circles of dependencies
// end with the third pass that defers the same number.
void WriteChangesOperation::WriteInPasses(const MarkedVariables& pending) const {
  std::size_t beforeLast = 0;
  std::size_t last = 0;
  while (true) {
    const Pass pass = RunPass(pending);
    const bool stuck = pass.deferred == last && pass.deferred == beforeLast;
    if (stuck || !pass.wroteSomething) return;
    beforeLast = last;
    last = pass.deferred;
  }
}

WriteChangesOperation::Pass WriteChangesOperation::RunPass(const MarkedVariables& pending) const {
  Pass pass;
  const std::size_t all = pending.variables.Count();
  for (const Definition& definition : pending.variables) {
    const auto entry = Database()->ReadObject(definition);
    const auto variable = entry ? entry->MakeVariable() : nullptr;
    if (!variable || !variable->ToBeWritten()) continue;
    if (!variable->CheckHandling(AccessMode::Write)) {
      GiveUpWriting(*variable);
    } else if (HasPendingDependency(*variable)) {
      ++pass.deferred;
    } else {
      const bool goesOn = Write(*variable);
      CheckGoesOn();
      if (!goesOn) return pass;
      pass.wroteSomething = true;
      ShowProgress(all - pending.count->Count(), all);
    }
  }
  return pass;
}

bool WriteChangesOperation::HasPendingDependency(const Variable& variable) const {
  for (const Definition& dependency : variable.WriteDependencies()) {
    if (IsPending(dependency)) return true;
  }
  return false;
}

bool WriteChangesOperation::IsPending(const Definition& definition) const {
  const auto entry = Database()->ReadObject(definition);
  const auto variable = entry ? entry->MakeVariable() : nullptr;
  return variable && variable->ToBeWritten();
}

void WriteChangesOperation::GiveUpWriting(const Variable& variable) const {
  Database()->SetVariableToBeWritten(variable.Definition(), false);
  Gui()->ShowObject(Database()->ReadObject(variable.Definition()));
}

bool WriteChangesOperation::Write(const Variable& variable) const {
  Comm()->SetLastResult(
      static_cast<std::int32_t>(CommResult::Success));  // what an earlier exchange left
  KernelExtension()->WriteVariable(variable.Definition(), variable.Value());
  return !EndsPass(Comm()->LastResult());
}

void DownloadOperation::Run(Definition& menuDefinition) {
  ResolveMenuDefinition(menuDefinition);
  const auto menu = FindMenu(menuDefinition);
  if (!menu) return;
  Gui()->StopCurrentEditing();
  RunMethod("__ZAF__pre_download");
  OnFailure restore([this] { EndProgress(); });
  UpdateLock update(Gui());
  MarkToBeWritten(*menu);
  SetProgressTitle(ResText(idSaveToDevice));
  Components().WriteChanges();
  update.Release();
  RunMethod("__ZAF__post_download");
  restore.Done();
}

void DownloadOperation::MarkToBeWritten(const Menu& menu) const {
  for (const MenuItem& item : MenuItems(menu.Items())) {
    if (item.Definition().Kind() != ObjectKind::Variable || item.IsReadOnly()) continue;
    const auto entry = Database()->ReadObject(item.Definition());
    const auto variable = entry ? entry->MakeVariable() : nullptr;
    if (!variable || !variable->CheckHandling(AccessMode::Write)) continue;
    Database()->SetVariableAvailable(item.Definition(), true);
    Database()->SetVariableToBeWritten(item.Definition(), true);
    Gui()->ShowObject(Database()->ReadObject(item.Definition()));
  }
}

}  // namespace ZAFHartLib
