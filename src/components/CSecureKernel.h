#pragma once

#include <type_traits>

#include "interfaces/ComponentBase.h"
#include "interfaces/IDDKernel.h"
#include "platform/Object.h"

namespace ZAFHartLib {

// The kernel for callers that cannot deal with failures: hands every call on to the kernel that the
// component model holds. A failure is reported to the user as an evaluation error, the recursion
// flags are cleared so that later calls work, and the call answers nothing, false, 0 or an empty
// list. DataModel is handed on as it is. A cancelled operation stays one, and so does one that ends
// for want of a connection: these failures (ErrorNumber::Cancelled, NotConnected) reach the caller
// without a report. See IDDKernel for the operations.
class CSecureKernel : public platform::Object,
                      public ZAFHartTypes::IDDKernel,
                      public ZAFHartTypes::IDDKernel2 {
 public:
  using Command = ZAFHartTypes::Command;
  using CommandRef = ZAFHartTypes::CommandRef;
  using DataItemList = ZAFHartTypes::DataItemList;
  using DDObject = ZAFHartTypes::DDObject;
  using Definition = ZAFHartTypes::Definition;
  using DefinitionList = ZAFHartTypes::DefinitionList;
  using EditDisplay = ZAFHartTypes::EditDisplay;
  using IDDComponents = ZAFHartTypes::IDDComponents;
  using IDDDataModel = ZAFHartTypes::IDDDataModel;
  using IDDKernel = ZAFHartTypes::IDDKernel;
  using IDDKernel2 = ZAFHartTypes::IDDKernel2;
  using ItemArray = ZAFHartTypes::ItemArray;
  using ItemCollection = ZAFHartTypes::ItemCollection;
  using Menu = ZAFHartTypes::Menu;
  using Method = ZAFHartTypes::Method;
  using Variable = ZAFHartTypes::Variable;
  using Variant = ZAFHartTypes::Variant;
  using WriteAsOne = ZAFHartTypes::WriteAsOne;
  template <typename T>
  using Ptr = std::shared_ptr<T>;

  void SetComponentModel(const Ptr<IDDComponents>& components) override { model_.Set(components); }
  Ptr<IDDComponents> ComponentModel() const override { return model_.Get(); }
  void SetDataModel(Ptr<IDDDataModel> model) override;
  Ptr<IDDDataModel> DataModel() const override;
  void InitializeDB(const std::string& dataModelClass) override;
  DefinitionList Commands() const override;

  Ptr<Variable> GetVariable(const Definition& definition) override;
  Ptr<Command> GetCommand(const Definition& definition) override;
  Ptr<Menu> GetMenu(const Definition& definition) override;
  Ptr<EditDisplay> GetEditDisplay(const Definition& definition) override;
  Ptr<Method> GetMethod(const Definition& definition) override;
  Ptr<WriteAsOne> GetWriteAsOne(const Definition& definition) override;
  Ptr<ItemArray> GetArray(const Definition& definition) override;
  Ptr<ItemCollection> GetCollection(const Definition& definition) override;
  bool GetVariableValidity(const Definition& definition) override;
  bool GetMethodValidity(const Definition& definition) override;
  Ptr<Variable> CalculateVariableType(const Definition& definition) override;
  Ptr<Command> GetSafeCommand(const Definition& definition) override;

  Ptr<Variable> ReadVariable(const Definition& definition) override;
  void AsyncReadVariable(const Definition& definition) override;
  void WriteVariable(const Definition& definition, const Variant& value) override;

  Ptr<CommandRef> FindReadCommand(const Definition& definition,
                                  const Ptr<CommandRef>& previous = {}) override;
  Ptr<CommandRef> FindWriteCommand(const Definition& definition) override;
  void ExecuteCommand(const Ptr<Command>& command, std::int16_t transactionNumber) override;
  void AsyncExecuteCommandStart(const Ptr<CommandRef>& reference) override;
  void AsyncExecuteCommandEnd(const Ptr<CommandRef>& reference) override;
  void ExecutePreReads(DataItemList& items) override;
  void ExecutePostReads(DataItemList& items) override;
  void ExecutePreWrites(DataItemList& items) override;
  void ExecutePostWrites(DataItemList& items) override;
  void ExecuteActions(const DefinitionList& methods, const Ptr<DDObject>& object) override;

  void ExecuteRelations(const Definition& variable) override;
  void ExecuteRefresh(const Definition& relation, const Definition& context) override;
  void ExecuteUnit(const Definition& relation, const Definition& context) override;
  Ptr<WriteAsOne> StartWriteAsOne(const Definition& definition) override;
  void ExecuteWriteAsOne(Ptr<WriteAsOne>& group, Ptr<Variable>& variable, bool isEntered) override;

  void ExecuteMethod(const Definition& method, const Ptr<DDObject>& object,
                     bool inAbort = false) override;

  Ptr<Menu> StartMenu(const Definition& definition) override;
  void ExecuteMenu(const Ptr<Menu>& menu, const Ptr<DDObject>& object, bool isEntered) override;
  Ptr<EditDisplay> StartEditDisplay(const Definition& definition) override;
  void ExecuteEditDisplay(const Ptr<EditDisplay>& display, const Ptr<DDObject>& object,
                          bool isEntered) override;
  Ptr<DDObject> ReadArrayElement(const Ptr<ItemArray>& array, const Variant& index) override;
  Ptr<DDObject> ReadCollectionMember(const Ptr<ItemCollection>& collection,
                                     const Variant& ident) override;

  Ptr<Menu> AsyncStartMenu(const Definition& definition) override;
  void AsyncExecuteMenu(const Ptr<Menu>& menu, const Ptr<DDObject>& object,
                        bool isEntered = false) override;

 private:
  // Calls a member of the kernel's interface that the member belongs to.
  template <typename Interface, typename Member, typename... Arguments>
  auto Trapped(Member Interface::*member, Arguments&&... arguments) const
      -> std::invoke_result_t<Member Interface::*, Interface&, Arguments...>;
  void Report(const ZAFHartTypes::Failure& failure) const;

  ZAFHartTypes::ModelReference model_;
};

}  // namespace ZAFHartLib
