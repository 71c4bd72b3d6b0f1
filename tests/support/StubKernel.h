#pragma once

#include <string>
#include <vector>

#include "interfaces/IDDComponents.h"

namespace test_support {

using namespace ZAFHartTypes;  // NOLINT(google-build-using-namespace)

// A kernel without a device or a data model: its getters hand out what the worker database holds.
// Derive to do more.
class StubKernel : public IDDKernel {
 protected:
  template <typename T>
  using Ptr = std::shared_ptr<T>;

 public:
  void SetComponentModel(const Ptr<IDDComponents>& model) override { components = model; }
  Ptr<IDDComponents> ComponentModel() const override { return components.lock(); }
  void SetDataModel(Ptr<IDDDataModel> model) override { dataModel = std::move(model); }
  Ptr<IDDDataModel> DataModel() const override { return dataModel; }
  void InitializeDB(const std::string&) override {}
  DefinitionList Commands() const override { return commands; }

  Ptr<Variable> GetVariable(const Definition& d) override {
    calls.push_back("GetVariable " + d.Name());
    return Read(d)->MakeVariable();
  }
  Ptr<Command> GetCommand(const Definition& d) override { return Read(d)->MakeCommand(); }
  Ptr<Menu> GetMenu(const Definition& d) override { return Read(d)->MakeMenu(); }
  Ptr<EditDisplay> GetEditDisplay(const Definition& d) override {
    return Read(d)->MakeEditDisplay();
  }
  Ptr<Method> GetMethod(const Definition& d) override { return Read(d)->MakeMethod(); }
  Ptr<WriteAsOne> GetWriteAsOne(const Definition& d) override { return Read(d)->MakeWriteAsOne(); }
  Ptr<ItemArray> GetArray(const Definition& d) override { return Read(d)->MakeArray(); }
  Ptr<ItemCollection> GetCollection(const Definition& d) override {
    return Read(d)->MakeCollection();
  }
  bool GetVariableValidity(const Definition& d) override { return GetVariable(d)->Validity(); }
  bool GetMethodValidity(const Definition& d) override { return GetMethod(d)->IsValid(); }
  Ptr<Variable> CalculateVariableType(const Definition& d) override { return GetVariable(d); }
  Ptr<Command> GetSafeCommand(const Definition& d) override { return GetCommand(d); }

  Ptr<Variable> ReadVariable(const Definition& definition) override {
    calls.push_back("ReadVariable " + definition.Name());
    return Read(definition)->MakeVariable();
  }
  void AsyncReadVariable(const Definition& definition) override {
    calls.push_back("AsyncReadVariable " + definition.Name());
  }
  void WriteVariable(const Definition& definition, const Variant& value) override {
    calls.push_back("WriteVariable " + definition.Name() + " " + value.Describe());
  }

  Ptr<CommandRef> FindReadCommand(const Definition&, const Ptr<CommandRef>&) override {
    return nullptr;
  }
  Ptr<CommandRef> FindWriteCommand(const Definition&) override { return nullptr; }
  void ExecuteCommand(const Ptr<Command>& command, std::int16_t number) override {
    calls.push_back("ExecuteCommand " + command->Definition().Name() + " " +
                    std::to_string(number));
  }
  void AsyncExecuteCommandStart(const Ptr<CommandRef>&) override {}
  void AsyncExecuteCommandEnd(const Ptr<CommandRef>&) override {
    calls.push_back("AsyncExecuteCommandEnd");
  }
  void ExecutePreReads(DataItemList&) override {}
  void ExecutePostReads(DataItemList&) override {}
  void ExecutePreWrites(DataItemList&) override {}
  void ExecutePostWrites(DataItemList&) override {}
  void ExecuteActions(const DefinitionList&, const Ptr<DDObject>&) override {}

  void ExecuteRelations(const Definition& variable) override {
    calls.push_back("ExecuteRelations " + variable.Name());
  }
  void ExecuteRefresh(const Definition&, const Definition&) override {}
  void ExecuteUnit(const Definition&, const Definition&) override {}
  Ptr<WriteAsOne> StartWriteAsOne(const Definition& d) override { return GetWriteAsOne(d); }
  void ExecuteWriteAsOne(Ptr<WriteAsOne>&, Ptr<Variable>&, bool) override {}

  void ExecuteMethod(const Definition& method, const Ptr<DDObject>&, bool) override {
    calls.push_back("ExecuteMethod " + method.Name());
  }

  Ptr<Menu> StartMenu(const Definition& d) override { return GetMenu(d); }
  void ExecuteMenu(const Ptr<Menu>&, const Ptr<DDObject>&, bool) override {}
  Ptr<EditDisplay> StartEditDisplay(const Definition& d) override { return GetEditDisplay(d); }
  void ExecuteEditDisplay(const Ptr<EditDisplay>&, const Ptr<DDObject>&, bool) override {}
  Ptr<DDObject> ReadArrayElement(const Ptr<ItemArray>&, const Variant&) override { return nullptr; }
  Ptr<DDObject> ReadCollectionMember(const Ptr<ItemCollection>&, const Variant&) override {
    return nullptr;
  }

  std::weak_ptr<IDDComponents> components;
  Ptr<IDDDataModel> dataModel;
  DefinitionList commands;
  std::vector<std::string> calls;  // in order, with their arguments

 protected:
  Ptr<DDObject> Read(const Definition& definition) const {
    auto object = components.lock()->DDWorkerDB()->ReadObject(definition);
    if (!object) throw Failure(ErrorNumber::ObjectNotSet, "StubKernel", definition.Name());
    return object;
  }
};

}  // namespace test_support
