#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ddobjects/IDDDataModel.h"
#include "platform/Export.h"
#include "types/Variant.h"

namespace ZAFHartTypes {

class IDDComponents;

// Executes the semantics of a device description. Single-threaded; every operation may run the
// message loop while it waits for the device, and fails with ObjectNotSet when the DTM instance was
// torn down meanwhile. Device and DD errors are recorded on the variables and reported to the GUI
// manager, not raised.
class ZAF_API IDDKernel {
 public:
  virtual ~IDDKernel() = default;
  virtual void SetComponentModel(const std::shared_ptr<IDDComponents>& components) = 0;
  virtual std::shared_ptr<IDDComponents> ComponentModel() const = 0;
  virtual void SetDataModel(std::shared_ptr<IDDDataModel> model) = 0;
  virtual std::shared_ptr<IDDDataModel> DataModel() const = 0;
  // Creates the data model by class name and fills the worker database from it.
  virtual void InitializeDB(const std::string& dataModelClass) = 0;
  // A copy of the list of all commands.
  virtual DefinitionList Commands() const = 0;

  // Typed getters: the object with current attributes. Raise ObjectNotSet for an unknown name or an
  // object of another kind.
  virtual std::shared_ptr<Variable> GetVariable(const Definition& definition) = 0;
  virtual std::shared_ptr<Command> GetCommand(const Definition& definition) = 0;
  virtual std::shared_ptr<Menu> GetMenu(const Definition& definition) = 0;
  virtual std::shared_ptr<EditDisplay> GetEditDisplay(const Definition& definition) = 0;
  virtual std::shared_ptr<Method> GetMethod(const Definition& definition) = 0;
  virtual std::shared_ptr<WriteAsOne> GetWriteAsOne(const Definition& definition) = 0;
  virtual std::shared_ptr<ItemArray> GetArray(const Definition& definition) = 0;
  virtual std::shared_ptr<ItemCollection> GetCollection(const Definition& definition) = 0;
  virtual bool GetVariableValidity(const Definition& definition) = 0;
  virtual bool GetMethodValidity(const Definition& definition) = 0;
  virtual std::shared_ptr<Variable> CalculateVariableType(const Definition& definition) = 0;
  // GetCommand with errors held back; nothing after a cyclic evaluation or a failure.
  virtual std::shared_ptr<Command> GetSafeCommand(const Definition& definition) = 0;

  virtual std::shared_ptr<Variable> ReadVariable(const Definition& definition) = 0;
  virtual void AsyncReadVariable(const Definition& definition) = 0;
  virtual void WriteVariable(const Definition& definition, const Variant& value) = 0;

  // The next command and transaction that reads the variable after `previous` (nothing: the first);
  // nothing at the end. The result's command is the caller's own copy.
  virtual std::shared_ptr<CommandRef> FindReadCommand(
      const Definition& definition, const std::shared_ptr<CommandRef>& previous = {}) = 0;
  virtual std::shared_ptr<CommandRef> FindWriteCommand(const Definition& definition) = 0;
  // Executes one transaction of `command`, on that very object: callers pass a copy of their own.
  virtual void ExecuteCommand(const std::shared_ptr<Command>& command,
                              std::int16_t transactionNumber) = 0;
  virtual void AsyncExecuteCommandStart(const std::shared_ptr<CommandRef>& reference) = 0;
  virtual void AsyncExecuteCommandEnd(const std::shared_ptr<CommandRef>& reference) = 0;
  virtual void ExecutePreReads(DataItemList& items) = 0;
  virtual void ExecutePostReads(DataItemList& items) = 0;
  virtual void ExecutePreWrites(DataItemList& items) = 0;
  virtual void ExecutePostWrites(DataItemList& items) = 0;
  virtual void ExecuteActions(const DefinitionList& methods,
                              const std::shared_ptr<DDObject>& object) = 0;

  virtual void ExecuteRelations(const Definition& variable) = 0;
  virtual void ExecuteRefresh(const Definition& relation, const Definition& context) = 0;
  // An empty context gives every dependent item its unit.
  virtual void ExecuteUnit(const Definition& relation, const Definition& context) = 0;
  virtual std::shared_ptr<WriteAsOne> StartWriteAsOne(const Definition& definition) = 0;
  // Enters or leaves the editing of one member; both references may be replaced.
  virtual void ExecuteWriteAsOne(std::shared_ptr<WriteAsOne>& group,
                                 std::shared_ptr<Variable>& variable, bool isEntered) = 0;

  // Runs a method with `object` as its context.
  virtual void ExecuteMethod(const Definition& method, const std::shared_ptr<DDObject>& object,
                             bool inAbort = false) = 0;

  // Prepares a menu for display, reading its variables from the device.
  virtual std::shared_ptr<Menu> StartMenu(const Definition& definition) = 0;
  // The user enters or leaves an item of the menu.
  virtual void ExecuteMenu(const std::shared_ptr<Menu>& menu,
                           const std::shared_ptr<DDObject>& object, bool isEntered) = 0;
  virtual std::shared_ptr<EditDisplay> StartEditDisplay(const Definition& definition) = 0;
  virtual void ExecuteEditDisplay(const std::shared_ptr<EditDisplay>& display,
                                  const std::shared_ptr<DDObject>& object, bool isEntered) = 0;
  // The entry of the array's element, or of the collection's member; nothing when there is none.
  virtual std::shared_ptr<DDObject> ReadArrayElement(const std::shared_ptr<ItemArray>& array,
                                                     const Variant& index) = 0;
  virtual std::shared_ptr<DDObject> ReadCollectionMember(
      const std::shared_ptr<ItemCollection>& collection, const Variant& ident) = 0;
};

// Menus whose values come from the background refresh instead of a read.
class ZAF_API IDDKernel2 {
 public:
  virtual ~IDDKernel2() = default;
  virtual std::shared_ptr<Menu> AsyncStartMenu(const Definition& definition) = 0;
  virtual void AsyncExecuteMenu(const std::shared_ptr<Menu>& menu,
                                const std::shared_ptr<DDObject>& object,
                                bool isEntered = false) = 0;
};

}  // namespace ZAFHartTypes
