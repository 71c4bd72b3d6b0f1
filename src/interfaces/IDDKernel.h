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
// message loop while it waits for the device or for the user's answer to an error.
//
// Errors of the device and the DD are not raised: they are reported to the GUI manager with an
// ItemIndex and recorded on the variables (ErrorIndex, ErrorText). Raised are: ObjectNotSet for an
// unknown item that is to be worked on, for an object that is missing, and when the DTM instance
// was torn down meanwhile; Cancelled when the user breaks an exchange off; what data models,
// methods, links and controls raise.
class ZAF_API IDDKernel {
 public:
  virtual ~IDDKernel() = default;
  // Held weakly; set before anything else, and to nothing at tear-down.
  virtual void SetComponentModel(const std::shared_ptr<IDDComponents>& components) = 0;
  virtual std::shared_ptr<IDDComponents> ComponentModel() const = 0;
  // The device data model that computes attributes and runs methods; set by InitializeDB. Setting
  // it adds no objects.
  virtual void SetDataModel(std::shared_ptr<IDDDataModel> model) = 0;
  virtual std::shared_ptr<IDDDataModel> DataModel() const = 0;
  // Creates the data model by class name, fills the worker database from it, gives every variable
  // its unit and marks all variables as not read. Raises CannotCreateObject, or TypeMismatch for a
  // class that is no data model.
  virtual void InitializeDB(const std::string& dataModelClass) = 0;
  // A copy of the list of all commands, in the order in which a search visits them.
  virtual DefinitionList Commands() const = 0;

  // Typed getters: the object with current attributes, computed when they are stale; its value is
  // not read. Never nothing: raise ObjectNotSet for an unknown name or an object of another kind.
  // One that is computed from itself: a variable is reported (CyclicVariable) and handed out as it
  // stands; so is a command (CyclicCommand), which raises Unexpected when no error handler handles
  // the report; the other kinds raise Unexpected.
  virtual std::shared_ptr<Variable> GetVariable(const Definition& definition) = 0;
  virtual std::shared_ptr<Command> GetCommand(const Definition& definition) = 0;
  virtual std::shared_ptr<Menu> GetMenu(const Definition& definition) = 0;
  virtual std::shared_ptr<EditDisplay> GetEditDisplay(const Definition& definition) = 0;
  virtual std::shared_ptr<Method> GetMethod(const Definition& definition) = 0;
  virtual std::shared_ptr<WriteAsOne> GetWriteAsOne(const Definition& definition) = 0;
  virtual std::shared_ptr<ItemArray> GetArray(const Definition& definition) = 0;
  virtual std::shared_ptr<ItemCollection> GetCollection(const Definition& definition) = 0;
  // VALIDITY of the DD: whether the device, as it is configured, has the item. Raise as the getter.
  virtual bool GetVariableValidity(const Definition& definition) = 0;
  virtual bool GetMethodValidity(const Definition& definition) = 0;
  // The same as GetVariable.
  virtual std::shared_ptr<Variable> CalculateVariableType(const Definition& definition) = 0;
  // GetCommand with errors held back; nothing after a cyclic evaluation or a failure.
  virtual std::shared_ptr<Command> GetSafeCommand(const Definition& definition) = 0;

  // The variable, read from the device when it is readable, not available and not to be written;
  // its unit variable is read first. Nothing is read while emulating. One attempt, whose failure is
  // not raised, except Cancelled: there is a value when it is Available() with ErrorIndex() 0. Not
  // valid: reported as ReadNotValid, takes its SubstituteValue. No command reads it: reported as
  // CannotRead, available with ErrorIndex -1, so that it is not tried again.
  virtual std::shared_ptr<Variable> ReadVariable(const Definition& definition) = 0;
  // The same in the background, by a command above 1 when there is one: returns once the exchange
  // has been started, and the life signal ExchangeFinished tells its end. No signal when nothing is
  // to be read. Without a read command it also raises Unexpected; raises what the link raises.
  virtual void AsyncReadVariable(const Definition& definition) = 0;
  // Writes to the device at once (IDDWorkerDB::WriteValue only marks the variable); a library-held
  // variable ("__ZAF__…") just takes the value, and its relations are run.
  // - A value or variable that cannot be written (see Variable::CheckValue, strict) is reported as
  //   NotWritable; nothing is sent or stored. Ask before to tell the user what is allowed.
  // - One that is not valid is reported as WriteNotValid and written all the same.
  // - No command writes it: reported as CannotWrite; the value stays in the data set only.
  // - An answer comes to IDDErrorHandler::ResponseCodeError, also when all went well. No answer and
  //   a communication error are reported as CannotWrite. After these and a response code other than
  //   0, warnings too, the device's value is read back.
  // Raises NotConnected when there is no connection (see IDeviceConnection), and Cancelled: a new
  // value then stays to be written.
  virtual void WriteVariable(const Definition& definition, const Variant& value) = 0;

  // The next command and transaction that reads the variable after `previous` (nothing: the first);
  // nothing at the end. The result's command is the caller's own copy. The search may set index
  // variables of the data set. Raises ObjectNotSet for a `previous` without command.
  virtual std::shared_ptr<CommandRef> FindReadCommand(
      const Definition& definition, const std::shared_ptr<CommandRef>& previous = {}) = 0;
  // The first that writes it; nothing when none does.
  virtual std::shared_ptr<CommandRef> FindWriteCommand(const Definition& definition) = 0;
  // Executes one transaction of `command`, on that very object: callers pass a copy of their own.
  // Reads what the request needs, runs the actions before and after, stores the reply and runs the
  // relations of what was sent. An error answer, or none, is recorded on the variables of the reply
  // that have no error yet (ErrorIndex 128: no reply) and in "__ZAF__LastCommunicationError"; the
  // wrapper's LastResult and LastStatus tell it as well. Raises SubscriptOutOfRange for a
  // transaction that the command does not have, and what IDDCommWrapper::ExecuteCommand raises.
  virtual void ExecuteCommand(const std::shared_ptr<Command>& command,
                              std::int16_t transactionNumber) = 0;
  // The same in two halves: the first starts the exchange and returns; the communication wrapper
  // calls the second with the same object when it has ended.
  virtual void AsyncExecuteCommandStart(const std::shared_ptr<CommandRef>& reference) = 0;
  virtual void AsyncExecuteCommandEnd(const std::shared_ptr<CommandRef>& reference) = 0;
  // Each runs that action list of every variable bound to an item that is not INFO, in item order.
  virtual void ExecutePreReads(DataItemList& items) = 0;
  virtual void ExecutePostReads(DataItemList& items) = 0;
  virtual void ExecutePreWrites(DataItemList& items) = 0;
  virtual void ExecutePostWrites(DataItemList& items) = 0;
  // ExecuteMethod of each, in order; a method that raises ends it.
  virtual void ExecuteActions(const DefinitionList& methods,
                              const std::shared_ptr<DDObject>& object) = 0;

  // Runs every refresh and unit relation of the DD for a variable that has changed.
  virtual void ExecuteRelations(const Definition& variable) = 0;
  // `context` is the variable that has changed. One that the relation does not name does nothing.
  // It is kept for later while the relation itself is being computed.
  virtual void ExecuteRefresh(const Definition& relation, const Definition& context) = 0;
  // An empty context gives every dependent item its unit.
  virtual void ExecuteUnit(const Definition& relation, const Definition& context) = 0;
  // Begins to edit a group: reads its valid members and marks them as not checked.
  virtual std::shared_ptr<WriteAsOne> StartWriteAsOne(const Definition& definition) = 0;
  // Enters or leaves the editing of one member; both references may be replaced. A variable that is
  // no member is reported as NotCurrentlyEditable. The group is complete when all are checked.
  virtual void ExecuteWriteAsOne(std::shared_ptr<WriteAsOne>& group,
                                 std::shared_ptr<Variable>& variable, bool isEntered) = 0;

  // Runs a method with `object` as its context, which may be nothing. One that is not valid is
  // reported as MethodNotValid and not run. Whether it was aborted is not told.
  virtual void ExecuteMethod(const Definition& method, const std::shared_ptr<DDObject>& object,
                             bool inAbort = false) = 0;

  // Prepares a menu for display, reading its valid variables from the device; its items then hold
  // their objects. All items, as from GetMenu, are read-only for an observer
  // ("__ZAF__FDTUserLevel") and while the data set is locked ("__ZAF__DATASETLOCKSTATE").
  virtual std::shared_ptr<Menu> StartMenu(const Definition& definition) = 0;
  // The user enters or leaves an item of the menu. Entering reads a variable and runs its pre-edit
  // actions, starts a sub-menu or edit display; leaving takes what IDDDTMGUI::GetObjectValue
  // answers (Null: nothing was typed), runs post-edit actions and relations, and in synchronous
  // mode (see IDataBaseExtension) writes all changes. A method is run either way. Nothing is taken
  // for a read-only item. After a refused value (ErrorIndex NotWritable) the variable is read anew.
  // An object that is no item is reported as UnknownMenuItem; one of another kind than the item
  // raises InvalidArgument.
  virtual void ExecuteMenu(const std::shared_ptr<Menu>& menu,
                           const std::shared_ptr<DDObject>& object, bool isEntered) = 0;
  // As StartMenu and ExecuteMenu. Items of a wrong kind are reported as DisplayItemNotVariable and
  // EditItemNotEditable, and the display is returned without being shown; an object that is no edit
  // item as NotAnEditItem, a group left with members unchecked as NotAllChecked.
  virtual std::shared_ptr<EditDisplay> StartEditDisplay(const Definition& definition) = 0;
  virtual void ExecuteEditDisplay(const std::shared_ptr<EditDisplay>& display,
                                  const std::shared_ptr<DDObject>& object, bool isEntered) = 0;
  // The entry of the array's element, or of the collection's member; nothing when there is none.
  // `index` is an element's index, not a position; `ident` a member's name, in its letter case.
  virtual std::shared_ptr<DDObject> ReadArrayElement(const std::shared_ptr<ItemArray>& array,
                                                     const Variant& index) = 0;
  virtual std::shared_ptr<DDObject> ReadCollectionMember(
      const std::shared_ptr<ItemCollection>& collection, const Variant& ident) = 0;
};

// Menus whose values come from the background refresh instead of a read. Offered by kernels.
class ZAF_API IDDKernel2 {
 public:
  virtual ~IDDKernel2() = default;
  // StartMenu without reads.
  virtual std::shared_ptr<Menu> AsyncStartMenu(const Definition& definition) = 0;
  // ExecuteMenu, but a sub-menu that is entered is started without reads.
  virtual void AsyncExecuteMenu(const std::shared_ptr<Menu>& menu,
                                const std::shared_ptr<DDObject>& object,
                                bool isEntered = false) = 0;
};

}  // namespace ZAFHartTypes
