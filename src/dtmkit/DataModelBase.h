#pragma once

#include "dtmkit/Catalogue.h"
#include "platform/Export.h"

namespace ZAFHartTypes::dtmkit {

// A device data model on a catalogue. A DTM's data model is
//
//   class DataModel : public DataModelBase {
//    public:
//     DataModel() : DataModelBase(Description()) {}
//   };
//
// where Description() returns the process's one description of the device type. Init… put copies of
// the prototypes into the worker database, in the order they were described; Compute… run the
// item's computations and return it, or return it at once when there are none. What a computation
// raises reaches the kernel. IDDDataModel tells the rest of the operations' contract.
class ZAF_API DataModelBase : public platform::Object, public IDDDataModel {
 public:
  // `catalogue` outlives the data model and does not change while it lives.
  explicit DataModelBase(const Catalogue& catalogue) : catalogue_(catalogue) {}

  // Nothing.
  std::shared_ptr<platform::Object> GetCompilerAttrs() override;
  void InitVariables(IDDComponents& components, DefinitionList& commands,
                     DefinitionList& relations) override;
  void InitCommands(IDDComponents& components, DefinitionList& commands,
                    DefinitionList& relations) override;
  void InitCollections(IDDComponents& components, DefinitionList& commands,
                       DefinitionList& relations) override;
  void InitMenus(IDDComponents& components, DefinitionList& commands,
                 DefinitionList& relations) override;
  void InitEditDisplays(IDDComponents& components, DefinitionList& commands,
                        DefinitionList& relations) override;
  void InitMethods(IDDComponents& components, DefinitionList& commands,
                   DefinitionList& relations) override;
  void InitRelations(IDDComponents& components, DefinitionList& commands,
                     DefinitionList& relations) override;
  void InitArrays(IDDComponents& components, DefinitionList& commands,
                  DefinitionList& relations) override;

  std::shared_ptr<ItemArray> ComputeArrayAttrs(IDDKernel& kernel, IDDComponents& components,
                                               const std::string& name,
                                               std::shared_ptr<ItemArray> object) override;
  std::shared_ptr<Command> ComputeCmdAttrs(IDDKernel& kernel, IDDComponents& components,
                                           const std::string& name,
                                           std::shared_ptr<Command> object) override;
  std::shared_ptr<ItemCollection> ComputeCollectionAttrs(
      IDDKernel& kernel, IDDComponents& components, const std::string& name,
      std::shared_ptr<ItemCollection> object) override;
  std::shared_ptr<EditDisplay> ComputeEditDisplayAttrs(
      IDDKernel& kernel, IDDComponents& components, const std::string& name,
      std::shared_ptr<EditDisplay> object) override;
  std::shared_ptr<Menu> ComputeMenuAttrs(IDDKernel& kernel, IDDComponents& components,
                                         const std::string& name,
                                         std::shared_ptr<Menu> object) override;
  std::shared_ptr<Method> ComputeMethodAttrs(IDDKernel& kernel, IDDComponents& components,
                                             const std::string& name,
                                             std::shared_ptr<Method> object) override;
  std::shared_ptr<RefreshRelation> ComputeRefreshSpecifier(
      IDDKernel& kernel, IDDComponents& components, const std::string& name,
      std::shared_ptr<RefreshRelation> object) override;
  std::shared_ptr<UnitRelation> ComputeUnitSpecifier(IDDKernel& kernel, IDDComponents& components,
                                                     const std::string& name,
                                                     std::shared_ptr<UnitRelation> object) override;
  std::shared_ptr<Variable> ComputeVarAttrs(IDDKernel& kernel, IDDComponents& components,
                                            const std::string& name,
                                            std::shared_ptr<Variable> object) override;
  std::shared_ptr<WriteAsOne> ComputeWriteAsOneSpecifier(
      IDDKernel& kernel, IDDComponents& components, const std::string& name,
      std::shared_ptr<WriteAsOne> object) override;
  // Runs the method's body as RunMethod says; a method that has none here does nothing.
  void ExecuteMethodBody(IDDKernel& kernel, IDDComponents& components, const std::string& name,
                         std::shared_ptr<DDObject> context, bool inAbort) override;
  // What ComputeMethodAttrs and ComputeVarAttrs leave on the object. REQUIRES: an object, except
  // for ComputeVarType.
  bool ComputeMethodValidity(IDDKernel& kernel, IDDComponents& components, const std::string& name,
                             std::shared_ptr<Method> object) override;
  std::shared_ptr<Variable> ComputeVarType(IDDKernel& kernel, IDDComponents& components,
                                           const std::string& name,
                                           std::shared_ptr<Variable> object) override;
  bool ComputeVarValidity(IDDKernel& kernel, IDDComponents& components, const std::string& name,
                          std::shared_ptr<Variable> object) override;

 private:
  template <typename Item>
  void AddCopies(IDDComponents& components) const;
  template <typename Item>
  void AddCopies(IDDComponents& components, DefinitionList& list) const;
  template <typename Item>
  std::shared_ptr<Item> Compute(IDDKernel& kernel, IDDComponents& components,
                                std::shared_ptr<Item> object) const;

  const Catalogue& catalogue_;
};

}  // namespace ZAFHartTypes::dtmkit
