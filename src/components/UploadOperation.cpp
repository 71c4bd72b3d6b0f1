#include "components/UploadOperation.h"

#include "gui/CLockObject.h"
#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

void UploadOperation::Run(Definition& menuDefinition) {
  OnFailure restore([this] { EndProgress(); });
  SetProgressTitle(ResText(idLoadFromDevice));
  ResolveMenuDefinition(menuDefinition);
  const auto menu = FindMenu(menuDefinition);
  Gui()->StopCurrentEditing();
  CLockObject lock;
  lock.SetLock(Gui());
  const auto valuesKeep = OwnDatabase()->SuspendExpiry();
  const DefinitionList variables = menu ? VariablesOf(*menu) : AllUploadVariables();
  Load(variables, menu ? menu->Items().Count() : variables.Count());
  EndProgress();
  restore.Done();
}

void UploadOperation::Load(const DefinitionList& variables, std::size_t itemCount) const {
  UpdateLock update(Gui());
  RunMethod("__ZAF__pre_upload");
  Database()->SetVariableToBeWritten({}, false);
  Database()->SetVariableAvailable({}, false);  // those to be read among them
  MarkSynchronized();
  std::int32_t pollingAddress = 0;
  std::string tag;
  std::string longAddress;
  Comm()->GetAddressInformation(pollingAddress, tag, longAddress);
  CheckGoesOn();
  ReadInPasses(variables, itemCount);
  ReadRest(variables);
  update.Release();
  RunMethod("__ZAF__post_upload");
}

DefinitionList UploadOperation::VariablesOf(const Menu& menu) {
  DefinitionList variables;
  for (const MenuItem& item : menu.Items()) {
    if (item.Definition().Kind() == ObjectKind::Variable) variables.Add(item.Definition());
  }
  return variables;
}

DefinitionList UploadOperation::AllUploadVariables() const {
  DefinitionList variables;
  for (const auto& [key, definition] : OwnDatabase()->ListOfKind(ObjectKind::Variable)) {
    if (IsConfiguration(*Kernel()->GetVariable(definition))) variables.Add(definition);
  }
  return variables;
}

bool UploadOperation::IsConfiguration(const Variable& variable) {
  return !variable.Attributes().IsLibraryHeld() && !variable.Attributes().IsDynamic() &&
         variable.CheckHandling(AccessMode::Read);
}

// Reading a variable may make others valid; they are read in the next pass. The passes end with
// one in which no read made a variable available.
void UploadOperation::ReadInPasses(const DefinitionList& variables, std::size_t itemCount) const {
  const auto available = OwnDatabase()->CountMarked(VariableMark::Available, variables);
  bool progressed = true;
  while (progressed) {
    progressed = false;
    for (const Definition& definition : variables) {
      if (!IsToBeRead(*Kernel()->GetVariable(definition))) continue;
      Kernel()->ReadVariable(definition);
      CheckGoesOn();
      progressed = IsAvailable(definition) || progressed;
      ShowProgress(available->Count(), itemCount);
    }
  }
}

bool UploadOperation::IsToBeRead(const Variable& variable) {
  return variable.Validity() && !variable.Available() && variable.CheckHandling(AccessMode::Read) &&
         !variable.Attributes().IsDynamic();
}

bool UploadOperation::IsAvailable(const Definition& definition) const {
  const auto entry = Database()->ReadObject(definition);
  return entry && entry->MakeVariable() && entry->MakeVariable()->Available();
}

void UploadOperation::ReadRest(const DefinitionList& variables) const {
  for (const Definition& definition : variables) {
    const auto variable = Kernel()->GetVariable(definition);
    if (variable->Available() || !variable->CheckHandling(AccessMode::Read)) continue;
    Kernel()->ReadVariable(definition);
    CheckGoesOn();
  }
}

}  // namespace ZAFHartLib
