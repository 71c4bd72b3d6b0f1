#include "fdtobjects/CFDTDataModel.h"

#include <algorithm>

#include "fdtobjects/InternalCommand.h"
#include "fdtobjects/InternalMenus.h"
#include "fdtobjects/RefreshDataSet.h"
#include "fdtobjects/modFDTDataModel.h"
#include "interfaces/IDDComponents.h"
#include "interfaces/InternalNames.h"
#include "types/Failure.h"

namespace ZAFHartLib {

using ZAFHartTypes::Command;
using ZAFHartTypes::DDObject;
using ZAFHartTypes::DefinitionList;
using ZAFHartTypes::IDDComponents;
using ZAFHartTypes::IDDKernel;
using ZAFHartTypes::IDDWorkerDB;
using ZAFHartTypes::MakeObject;
using ZAFHartTypes::Menu;
using ZAFHartTypes::Method;
using ZAFHartTypes::SharedText;
using ZAFHartTypes::Variable;
namespace names = ZAFHartTypes::internal_names;

namespace {

std::shared_ptr<IDDWorkerDB> DatabaseOf(IDDComponents& components) {
  auto database = components.DDWorkerDB();
  if (database) return database;
  throw ZAFHartTypes::Failure(ZAFHartTypes::ErrorNumber::ObjectNotSet, "CFDTDataModel",
                              "The component model has no worker database.");
}

}  // namespace

void CFDTDataModel::AddIfAbsent(IDDComponents& components,
                                const std::shared_ptr<DDObject>& object) {
  const auto database = DatabaseOf(components);
  if (database->ReadObject(object->ObjectDefinition())) {
    overridden_.Add(object->ObjectDefinition());
  } else {
    database->AddObject(object);
  }
}

void CFDTDataModel::InitVariables(IDDComponents& components, DefinitionList&, DefinitionList&) {
  for (const InternalVariable& row : InternalVariables()) {
    const auto variable = MakeObject<Variable>(row.name);
    variable->SetAttributeBlock(row.attributes);
    AddIfAbsent(components, variable);
  }
}

void CFDTDataModel::InitCommands(IDDComponents& components, DefinitionList&, DefinitionList&) {
  AddIfAbsent(components, MakeObject<Command>(kResetConfigurationChangeFlag));
}

void CFDTDataModel::InitMenus(IDDComponents& components, DefinitionList&, DefinitionList&) {
  for (const InternalMenu& row : InternalMenus()) {
    AddIfAbsent(components, MakeObject<Menu>(row.name));
  }
}

void CFDTDataModel::InitMethods(IDDComponents& components, DefinitionList&, DefinitionList&) {
  DatabaseOf(components)->AddObject(MakeObject<Method>(names::kRefreshDataSet));
}

std::shared_ptr<Variable> CFDTDataModel::ComputeVarAttrs(IDDKernel& kernel, IDDComponents&,
                                                         const std::string& name,
                                                         std::shared_ptr<Variable> object) {
  const InternalVariable* row = FindInternalVariable(name);
  if (row != nullptr && !IsOverridden(*object)) ComputeInternalVariable(*row, kernel, *object);
  return object;
}

std::shared_ptr<Command> CFDTDataModel::ComputeCmdAttrs(IDDKernel&, IDDComponents&,
                                                        const std::string& name,
                                                        std::shared_ptr<Command> object) {
  if (name == kResetConfigurationChangeFlag && !IsOverridden(*object)) {
    ComputeResetConfigurationChangeFlag(*object);
  }
  return object;
}

std::shared_ptr<Menu> CFDTDataModel::ComputeMenuAttrs(IDDKernel& kernel, IDDComponents& components,
                                                      const std::string& name,
                                                      std::shared_ptr<Menu> object) {
  const auto row = std::ranges::find(InternalMenus(), name, &InternalMenu::name);
  if (row != InternalMenus().end() && !IsOverridden(*object)) {
    row->build(kernel, components, *object);
  }
  return object;
}

std::shared_ptr<Method> CFDTDataModel::ComputeMethodAttrs(IDDKernel&, IDDComponents&,
                                                          const std::string& name,
                                                          std::shared_ptr<Method> object) {
  static const SharedText label = "Refresh Dataset";
  static const SharedText help = "Call refresh of the online dataset";
  if (name == names::kRefreshDataSet && !IsOverridden(*object)) {
    object->SetLabel(label);
    object->SetHelp(help);
  }
  return object;
}

void CFDTDataModel::ExecuteMethodBody(IDDKernel&, IDDComponents& components,
                                      const std::string& name, std::shared_ptr<DDObject>, bool) {
  if (name == names::kRefreshDataSet) RefreshDataSet(components);
}

bool CFDTDataModel::ComputeMethodValidity(IDDKernel&, IDDComponents&, const std::string& name,
                                          std::shared_ptr<Method> object) {
  if (name == names::kRefreshDataSet && !IsOverridden(*object)) object->SetIsValid(true);
  return object->IsValid();
}

std::shared_ptr<Variable> CFDTDataModel::ComputeVarType(IDDKernel& kernel,
                                                        IDDComponents& components,
                                                        const std::string& name,
                                                        std::shared_ptr<Variable> object) {
  return ComputeVarAttrs(kernel, components, name, std::move(object));
}

bool CFDTDataModel::ComputeVarValidity(IDDKernel& kernel, IDDComponents& components,
                                       const std::string& name, std::shared_ptr<Variable> object) {
  return ComputeVarAttrs(kernel, components, name, std::move(object))->Validity();
}

}  // namespace ZAFHartLib
