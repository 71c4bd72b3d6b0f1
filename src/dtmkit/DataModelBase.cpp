#include "dtmkit/DataModelBase.h"

namespace ZAFHartTypes::dtmkit {

template <typename Item>
void DataModelBase::AddCopies(IDDComponents& components) const {
  const auto database = components.DDWorkerDB();
  for (const auto& prototype : catalogue_.Items<Item>()) database->AddObject(prototype->GetCopy());
}

template <typename Item>
void DataModelBase::AddCopies(IDDComponents& components, DefinitionList& list) const {
  AddCopies<Item>(components);
  for (const auto& prototype : catalogue_.Items<Item>()) list.Add(prototype->ObjectDefinition());
}

template <typename Item>
std::shared_ptr<Item> DataModelBase::Compute(IDDKernel& kernel, IDDComponents& components,
                                             std::shared_ptr<Item> object) const {
  Context context(kernel, components);
  if (object) catalogue_.Compute(context, *object);
  return object;
}

std::shared_ptr<platform::Object> DataModelBase::GetCompilerAttrs() {
  return nullptr;
}

void DataModelBase::InitVariables(IDDComponents& components, DefinitionList& /*commands*/,
                                  DefinitionList& /*relations*/) {
  AddCopies<Variable>(components);
}
void DataModelBase::InitCommands(IDDComponents& components, DefinitionList& commands,
                                 DefinitionList& /*relations*/) {
  AddCopies<Command>(components, commands);
}
void DataModelBase::InitCollections(IDDComponents& components, DefinitionList& /*commands*/,
                                    DefinitionList& /*relations*/) {
  AddCopies<ItemCollection>(components);
}
void DataModelBase::InitMenus(IDDComponents& components, DefinitionList& /*commands*/,
                              DefinitionList& /*relations*/) {
  AddCopies<Menu>(components);
}
void DataModelBase::InitEditDisplays(IDDComponents& components, DefinitionList& /*commands*/,
                                     DefinitionList& /*relations*/) {
  AddCopies<EditDisplay>(components);
}
void DataModelBase::InitMethods(IDDComponents& components, DefinitionList& /*commands*/,
                                DefinitionList& /*relations*/) {
  AddCopies<Method>(components);
}
void DataModelBase::InitRelations(IDDComponents& components, DefinitionList& /*commands*/,
                                  DefinitionList& relations) {
  AddCopies<RefreshRelation>(components, relations);
  AddCopies<UnitRelation>(components, relations);
  AddCopies<WriteAsOne>(components, relations);
}
void DataModelBase::InitArrays(IDDComponents& components, DefinitionList& /*commands*/,
                               DefinitionList& /*relations*/) {
  AddCopies<ItemArray>(components);
}

std::shared_ptr<ItemArray> DataModelBase::ComputeArrayAttrs(IDDKernel& kernel,
                                                            IDDComponents& components,
                                                            const std::string& /*name*/,
                                                            std::shared_ptr<ItemArray> object) {
  return Compute(kernel, components, std::move(object));
}
std::shared_ptr<Command> DataModelBase::ComputeCmdAttrs(IDDKernel& kernel,
                                                        IDDComponents& components,
                                                        const std::string& /*name*/,
                                                        std::shared_ptr<Command> object) {
  return Compute(kernel, components, std::move(object));
}
std::shared_ptr<ItemCollection> DataModelBase::ComputeCollectionAttrs(
    IDDKernel& kernel, IDDComponents& components, const std::string& /*name*/,
    std::shared_ptr<ItemCollection> object) {
  return Compute(kernel, components, std::move(object));
}
std::shared_ptr<EditDisplay> DataModelBase::ComputeEditDisplayAttrs(
    IDDKernel& kernel, IDDComponents& components, const std::string& /*name*/,
    std::shared_ptr<EditDisplay> object) {
  return Compute(kernel, components, std::move(object));
}
std::shared_ptr<Menu> DataModelBase::ComputeMenuAttrs(IDDKernel& kernel, IDDComponents& components,
                                                      const std::string& /*name*/,
                                                      std::shared_ptr<Menu> object) {
  return Compute(kernel, components, std::move(object));
}
std::shared_ptr<Method> DataModelBase::ComputeMethodAttrs(IDDKernel& kernel,
                                                          IDDComponents& components,
                                                          const std::string& /*name*/,
                                                          std::shared_ptr<Method> object) {
  return Compute(kernel, components, std::move(object));
}
std::shared_ptr<RefreshRelation> DataModelBase::ComputeRefreshSpecifier(
    IDDKernel& kernel, IDDComponents& components, const std::string& /*name*/,
    std::shared_ptr<RefreshRelation> object) {
  return Compute(kernel, components, std::move(object));
}
std::shared_ptr<UnitRelation> DataModelBase::ComputeUnitSpecifier(
    IDDKernel& kernel, IDDComponents& components, const std::string& /*name*/,
    std::shared_ptr<UnitRelation> object) {
  return Compute(kernel, components, std::move(object));
}
std::shared_ptr<Variable> DataModelBase::ComputeVarAttrs(IDDKernel& kernel,
                                                         IDDComponents& components,
                                                         const std::string& /*name*/,
                                                         std::shared_ptr<Variable> object) {
  return Compute(kernel, components, std::move(object));
}
std::shared_ptr<WriteAsOne> DataModelBase::ComputeWriteAsOneSpecifier(
    IDDKernel& kernel, IDDComponents& components, const std::string& /*name*/,
    std::shared_ptr<WriteAsOne> object) {
  return Compute(kernel, components, std::move(object));
}

void DataModelBase::ExecuteMethodBody(IDDKernel& kernel, IDDComponents& components,
                                      const std::string& name, std::shared_ptr<DDObject> context,
                                      bool inAbort) {
  const MethodBody* body = catalogue_.Body(name);
  if (!body) return;
  Context surroundings(kernel, components);
  RunMethod(surroundings, name, *body, std::move(context), inAbort);
}

bool DataModelBase::ComputeMethodValidity(IDDKernel& kernel, IDDComponents& components,
                                          const std::string& name, std::shared_ptr<Method> object) {
  return ComputeMethodAttrs(kernel, components, name, std::move(object))->IsValid();
}

std::shared_ptr<Variable> DataModelBase::ComputeVarType(IDDKernel& kernel,
                                                        IDDComponents& components,
                                                        const std::string& name,
                                                        std::shared_ptr<Variable> object) {
  return ComputeVarAttrs(kernel, components, name, std::move(object));
}

bool DataModelBase::ComputeVarValidity(IDDKernel& kernel, IDDComponents& components,
                                       const std::string& name, std::shared_ptr<Variable> object) {
  return ComputeVarAttrs(kernel, components, name, std::move(object))->Validity();
}

}  // namespace ZAFHartTypes::dtmkit
