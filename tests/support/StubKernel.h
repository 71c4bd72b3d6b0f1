#pragma once

#include <string>
#include <vector>

#include "interfaces/IDDComponents.h"

namespace test_support {

using namespace ZAFHartTypes;  // NOLINT(google-build-using-namespace)

// A kernel without a device or a data model: its getters hand out what the worker database holds.
// Derive to do more.
class StubKernel : public IDDKernel {
 public:
  void SetComponentModel(const std::shared_ptr<IDDComponents>& model) override {
    components = model;
  }
  std::shared_ptr<IDDComponents> ComponentModel() const override { return components.lock(); }
  void SetDataModel(std::shared_ptr<IDDDataModel> model) override { dataModel = std::move(model); }
  std::shared_ptr<IDDDataModel> DataModel() const override { return dataModel; }
  void InitializeDB(const std::string&) override {}
  DefinitionList Commands() const override { return commands; }

  std::shared_ptr<Variable> GetVariable(const Definition& definition) override {
    calls.push_back("GetVariable " + definition.Name());
    return Read(definition)->MakeVariable();
  }
  std::shared_ptr<Command> GetCommand(const Definition& definition) override {
    return Read(definition)->MakeCommand();
  }
  std::shared_ptr<Menu> GetMenu(const Definition& definition) override {
    return Read(definition)->MakeMenu();
  }
  std::shared_ptr<EditDisplay> GetEditDisplay(const Definition& definition) override {
    return Read(definition)->MakeEditDisplay();
  }
  std::shared_ptr<Method> GetMethod(const Definition& definition) override {
    return Read(definition)->MakeMethod();
  }
  std::shared_ptr<WriteAsOne> GetWriteAsOne(const Definition& definition) override {
    return Read(definition)->MakeWriteAsOne();
  }
  std::shared_ptr<ItemArray> GetArray(const Definition& definition) override {
    return Read(definition)->MakeArray();
  }
  std::shared_ptr<ItemCollection> GetCollection(const Definition& definition) override {
    return Read(definition)->MakeCollection();
  }
  bool GetVariableValidity(const Definition& definition) override {
    return GetVariable(definition)->Validity();
  }
  bool GetMethodValidity(const Definition& definition) override {
    return GetMethod(definition)->IsValid();
  }
  std::shared_ptr<Variable> CalculateVariableType(const Definition& definition) override {
    return GetVariable(definition);
  }
  std::shared_ptr<Command> GetSafeCommand(const Definition& definition) override {
    return GetCommand(definition);
  }

  std::shared_ptr<Variable> ReadVariable(const Definition& definition) override {
    calls.push_back("ReadVariable " + definition.Name());
    return Read(definition)->MakeVariable();
  }
  void AsyncReadVariable(const Definition& definition) override {
    calls.push_back("AsyncReadVariable " + definition.Name());
  }
  void WriteVariable(const Definition& definition, const Variant& value) override {
    calls.push_back("WriteVariable " + definition.Name() + " " + value.Describe());
  }

  std::shared_ptr<CommandRef> FindReadCommand(const Definition&,
                                              const std::shared_ptr<CommandRef>&) override {
    return nullptr;
  }
  std::shared_ptr<CommandRef> FindWriteCommand(const Definition&) override { return nullptr; }
  void ExecuteCommand(const std::shared_ptr<Command>& command, std::int16_t number) override {
    calls.push_back("ExecuteCommand " + command->Definition().Name() + " " +
                    std::to_string(number));
  }
  void AsyncExecuteCommandStart(const std::shared_ptr<CommandRef>&) override {}
  void AsyncExecuteCommandEnd(const std::shared_ptr<CommandRef>&) override {
    calls.push_back("AsyncExecuteCommandEnd");
  }
  void ExecutePreReads(DataItemList&) override {}
  void ExecutePostReads(DataItemList&) override {}
  void ExecutePreWrites(DataItemList&) override {}
  void ExecutePostWrites(DataItemList&) override {}
  void ExecuteActions(const DefinitionList&, const std::shared_ptr<DDObject>&) override {}

  void ExecuteRelations(const Definition& variable) override {
    calls.push_back("ExecuteRelations " + variable.Name());
  }
  void ExecuteRefresh(const Definition&, const Definition&) override {}
  void ExecuteUnit(const Definition&, const Definition&) override {}
  std::shared_ptr<WriteAsOne> StartWriteAsOne(const Definition& definition) override {
    return GetWriteAsOne(definition);
  }
  void ExecuteWriteAsOne(std::shared_ptr<WriteAsOne>&, std::shared_ptr<Variable>&, bool) override {}

  void ExecuteMethod(const Definition& method, const std::shared_ptr<DDObject>&, bool) override {
    calls.push_back("ExecuteMethod " + method.Name());
  }

  std::shared_ptr<Menu> StartMenu(const Definition& definition) override {
    return GetMenu(definition);
  }
  void ExecuteMenu(const std::shared_ptr<Menu>&, const std::shared_ptr<DDObject>&, bool) override {}
  std::shared_ptr<EditDisplay> StartEditDisplay(const Definition& definition) override {
    return GetEditDisplay(definition);
  }
  void ExecuteEditDisplay(const std::shared_ptr<EditDisplay>&, const std::shared_ptr<DDObject>&,
                          bool) override {}
  std::shared_ptr<DDObject> ReadArrayElement(const std::shared_ptr<ItemArray>&,
                                             const Variant&) override {
    return nullptr;
  }
  std::shared_ptr<DDObject> ReadCollectionMember(const std::shared_ptr<ItemCollection>&,
                                                 const Variant&) override {
    return nullptr;
  }

  std::weak_ptr<IDDComponents> components;
  std::shared_ptr<IDDDataModel> dataModel;
  DefinitionList commands;
  std::vector<std::string> calls;  // in order, with their arguments

 protected:
  std::shared_ptr<DDObject> Read(const Definition& definition) const {
    auto object = components.lock()->DDWorkerDB()->ReadObject(definition);
    if (!object) throw Failure(ErrorNumber::ObjectNotSet, "StubKernel", definition.Name());
    return object;
  }
};

}  // namespace test_support
