#pragma once

#include <memory>
#include <string>

#include "ddobjects/Command.h"
#include "ddobjects/DefinitionList.h"
#include "ddobjects/EditDisplay.h"
#include "ddobjects/ItemArray.h"
#include "ddobjects/Menu.h"
#include "ddobjects/Method.h"
#include "ddobjects/Relations.h"
#include "ddobjects/Variable.h"
#include "platform/Export.h"
#include "platform/Object.h"

namespace ZAFHartTypes {

class IDDComponents;
class IDDKernel;

// What every data model fulfils: a generated one for the items of a device's DD, the library's own
// for the internal items.
//
// Init…: run once each, in the order variables, commands, menus, edit displays, methods, relations,
// arrays, collections. Each makes one object per DD item and adds it to the worker database
// (IDDWorkerDB::AddObject); InitCommands appends each definition to `commands`, InitRelations to
// `relations`. The database keeps the first object of a name: the device's model comes before the
// internal one, whose items it can replace. Static attributes are set here; those of a variable
// stay what every later computation starts from.
//
// Compute…: run whenever an object's attributes are needed and not current, on the device's model
// and then on the internal one. `name` is the item's name as it was defined, `object` the object to
// compute: of a variable a snapshot with its static attributes, of the other kinds the stored
// object as the last computation left it. A data model evaluates the conditional parts of the DD on
// it and returns it; one that does not own the item, or has nothing to evaluate, returns it
// unchanged. It may call back into the kernel. Failures reach the caller of the kernel's operation;
// other exceptions are turned into failures.
//
// `kernel` and `components` are those of the DTM instance and good for the call.
class ZAF_API IDDDataModel {
 public:
  virtual ~IDDDataModel() = default;

  // Attributes of the DD compilation, for hosts; may be nothing. The library does not ask.
  virtual std::shared_ptr<platform::Object> GetCompilerAttrs() = 0;

  // Each makes and adds the DD's items of that kind; InitRelations those of all three kinds of
  // relations, InitArrays the item arrays.
  virtual void InitVariables(IDDComponents& components, DefinitionList& commands,
                             DefinitionList& relations) = 0;
  virtual void InitCommands(IDDComponents& components, DefinitionList& commands,
                            DefinitionList& relations) = 0;
  virtual void InitCollections(IDDComponents& components, DefinitionList& commands,
                               DefinitionList& relations) = 0;
  virtual void InitMenus(IDDComponents& components, DefinitionList& commands,
                         DefinitionList& relations) = 0;
  virtual void InitEditDisplays(IDDComponents& components, DefinitionList& commands,
                                DefinitionList& relations) = 0;
  virtual void InitMethods(IDDComponents& components, DefinitionList& commands,
                           DefinitionList& relations) = 0;
  virtual void InitRelations(IDDComponents& components, DefinitionList& commands,
                             DefinitionList& relations) = 0;
  virtual void InitArrays(IDDComponents& components, DefinitionList& commands,
                          DefinitionList& relations) = 0;

  // For the typed getters of the kernel (GetArray, GetCommand, …). To return nothing makes the
  // getter raise ObjectNotSet.
  virtual std::shared_ptr<ItemArray> ComputeArrayAttrs(IDDKernel& kernel, IDDComponents& components,
                                                       const std::string& name,
                                                       std::shared_ptr<ItemArray> object) = 0;
  virtual std::shared_ptr<Command> ComputeCmdAttrs(IDDKernel& kernel, IDDComponents& components,
                                                   const std::string& name,
                                                   std::shared_ptr<Command> object) = 0;
  virtual std::shared_ptr<ItemCollection> ComputeCollectionAttrs(
      IDDKernel& kernel, IDDComponents& components, const std::string& name,
      std::shared_ptr<ItemCollection> object) = 0;
  virtual std::shared_ptr<EditDisplay> ComputeEditDisplayAttrs(
      IDDKernel& kernel, IDDComponents& components, const std::string& name,
      std::shared_ptr<EditDisplay> object) = 0;
  virtual std::shared_ptr<Menu> ComputeMenuAttrs(IDDKernel& kernel, IDDComponents& components,
                                                 const std::string& name,
                                                 std::shared_ptr<Menu> object) = 0;
  virtual std::shared_ptr<Method> ComputeMethodAttrs(IDDKernel& kernel, IDDComponents& components,
                                                     const std::string& name,
                                                     std::shared_ptr<Method> object) = 0;
  // Trigger and refresh items, and the unit variable and the items that depend on it, when the
  // relation is evaluated; of a unit relation at every evaluation. To return nothing is to return
  // `object`.
  virtual std::shared_ptr<RefreshRelation> ComputeRefreshSpecifier(
      IDDKernel& kernel, IDDComponents& components, const std::string& name,
      std::shared_ptr<RefreshRelation> object) = 0;
  virtual std::shared_ptr<UnitRelation> ComputeUnitSpecifier(
      IDDKernel& kernel, IDDComponents& components, const std::string& name,
      std::shared_ptr<UnitRelation> object) = 0;
  // For GetVariable and GetWriteAsOne, like the getters' above: label, help, type, handling,
  // validity, default and actions of a variable; the members of a group.
  virtual std::shared_ptr<Variable> ComputeVarAttrs(IDDKernel& kernel, IDDComponents& components,
                                                    const std::string& name,
                                                    std::shared_ptr<Variable> object) = 0;
  virtual std::shared_ptr<WriteAsOne> ComputeWriteAsOneSpecifier(
      IDDKernel& kernel, IDDComponents& components, const std::string& name,
      std::shared_ptr<WriteAsOne> object) = 0;
  // Runs the body of method `name` and returns when it has ended; does nothing when the model has
  // no such body. `context` is the object it was started from, maybe nothing; `inAbort` tells that
  // it runs as an abort method. Failures reach the caller of IDDKernel::ExecuteMethod.
  virtual void ExecuteMethodBody(IDDKernel& kernel, IDDComponents& components,
                                 const std::string& name, std::shared_ptr<DDObject> context,
                                 bool inAbort) = 0;
  // Parts of ComputeMethodAttrs and ComputeVarAttrs: the DD's VALIDITY alone, or the variable with
  // its type. The kernel takes both from these two and asks none of the following; they are for
  // hosts that hold a data model.
  virtual bool ComputeMethodValidity(IDDKernel& kernel, IDDComponents& components,
                                     const std::string& name, std::shared_ptr<Method> object) = 0;
  virtual std::shared_ptr<Variable> ComputeVarType(IDDKernel& kernel, IDDComponents& components,
                                                   const std::string& name,
                                                   std::shared_ptr<Variable> object) = 0;
  virtual bool ComputeVarValidity(IDDKernel& kernel, IDDComponents& components,
                                  const std::string& name, std::shared_ptr<Variable> object) = 0;
};

// Standard names that a DTM's kernel information answers; all are menus. The menus of uploads with
// live values collect their variables from the last three.
enum class StandardName : std::int32_t {
  UploadVariables = 1,   // variables of upload and download
  OnlineParameters = 3,  // settings that an upload may bring beside them
  ProcessVariables = 4,  // measured values; without one "__ZAF__process_variables"
  StatusDisplay = 6,     // device status; without one the library's own
};

// Object that each DTM provides beside its data model, created as "<project>.KernelInformation".
class ZAF_API IKernelInformation {
 public:
  virtual ~IKernelInformation() = default;
  // Name of one of the DTM's standard DD objects; "" when it has none. Without UploadVariables an
  // upload takes all variables that are readable and no live values, and a download has nothing to
  // write.
  virtual std::string StandardName(ZAFHartTypes::StandardName index) = 0;
  // Folder and file name of the DTM's component file; name the INI file and the DTM's settings.
  virtual std::string ComponentFolder() = 0;
  virtual std::string ComponentFileName() = 0;
  // Counts up when a variable of the data model goes or changes its type, so that a data set that
  // was saved with it is not taken for one of an older data model.
  virtual std::int32_t DataModelVersion() { return 1; }
};

}  // namespace ZAFHartTypes
