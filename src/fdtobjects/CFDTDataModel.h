#pragma once

#include "ddobjects/DefinitionList.h"
#include "ddobjects/IDDDataModel.h"
#include "platform/Object.h"

namespace ZAFHartLib {

// The data model of the internal objects that every DTM has beside its device's: the variables,
// menus, the command and the method of modFDTDataModel, InternalMenus, InternalCommand and
// RefreshDataSet. Its Init… run after the device's. An item that the device's DD defines itself is
// left to the device's data model.
class CFDTDataModel : public platform::Object, public ZAFHartTypes::IDDDataModel {
 public:
  std::shared_ptr<platform::Object> GetCompilerAttrs() override { return nullptr; }
  void InitVariables(ZAFHartTypes::IDDComponents& components, ZAFHartTypes::DefinitionList&,
                     ZAFHartTypes::DefinitionList&) override;
  // The command is found by its name, not by a search: it is not entered in `commands`.
  void InitCommands(ZAFHartTypes::IDDComponents& components, ZAFHartTypes::DefinitionList&,
                    ZAFHartTypes::DefinitionList&) override;
  void InitCollections(ZAFHartTypes::IDDComponents&, ZAFHartTypes::DefinitionList&,
                       ZAFHartTypes::DefinitionList&) override {}
  void InitMenus(ZAFHartTypes::IDDComponents& components, ZAFHartTypes::DefinitionList&,
                 ZAFHartTypes::DefinitionList&) override;
  void InitEditDisplays(ZAFHartTypes::IDDComponents&, ZAFHartTypes::DefinitionList&,
                        ZAFHartTypes::DefinitionList&) override {}
  // A device's own method of that name stays, but gets the internal label, help and validity.
  void InitMethods(ZAFHartTypes::IDDComponents& components, ZAFHartTypes::DefinitionList&,
                   ZAFHartTypes::DefinitionList&) override;
  void InitRelations(ZAFHartTypes::IDDComponents&, ZAFHartTypes::DefinitionList&,
                     ZAFHartTypes::DefinitionList&) override {}
  void InitArrays(ZAFHartTypes::IDDComponents&, ZAFHartTypes::DefinitionList&,
                  ZAFHartTypes::DefinitionList&) override {}

  std::shared_ptr<ZAFHartTypes::ItemArray> ComputeArrayAttrs(
      ZAFHartTypes::IDDKernel&, ZAFHartTypes::IDDComponents&, const std::string&,
      std::shared_ptr<ZAFHartTypes::ItemArray> object) override {
    return object;
  }
  std::shared_ptr<ZAFHartTypes::Command> ComputeCmdAttrs(
      ZAFHartTypes::IDDKernel&, ZAFHartTypes::IDDComponents&, const std::string& name,
      std::shared_ptr<ZAFHartTypes::Command> object) override;
  std::shared_ptr<ZAFHartTypes::ItemCollection> ComputeCollectionAttrs(
      ZAFHartTypes::IDDKernel&, ZAFHartTypes::IDDComponents&, const std::string&,
      std::shared_ptr<ZAFHartTypes::ItemCollection> object) override {
    return object;
  }
  std::shared_ptr<ZAFHartTypes::EditDisplay> ComputeEditDisplayAttrs(
      ZAFHartTypes::IDDKernel&, ZAFHartTypes::IDDComponents&, const std::string&,
      std::shared_ptr<ZAFHartTypes::EditDisplay> object) override {
    return object;
  }
  std::shared_ptr<ZAFHartTypes::Menu> ComputeMenuAttrs(
      ZAFHartTypes::IDDKernel& kernel, ZAFHartTypes::IDDComponents& components,
      const std::string& name, std::shared_ptr<ZAFHartTypes::Menu> object) override;
  std::shared_ptr<ZAFHartTypes::Method> ComputeMethodAttrs(
      ZAFHartTypes::IDDKernel&, ZAFHartTypes::IDDComponents&, const std::string& name,
      std::shared_ptr<ZAFHartTypes::Method> object) override;
  std::shared_ptr<ZAFHartTypes::RefreshRelation> ComputeRefreshSpecifier(
      ZAFHartTypes::IDDKernel&, ZAFHartTypes::IDDComponents&, const std::string&,
      std::shared_ptr<ZAFHartTypes::RefreshRelation> object) override {
    return object;
  }
  std::shared_ptr<ZAFHartTypes::UnitRelation> ComputeUnitSpecifier(
      ZAFHartTypes::IDDKernel&, ZAFHartTypes::IDDComponents&, const std::string&,
      std::shared_ptr<ZAFHartTypes::UnitRelation> object) override {
    return object;
  }
  std::shared_ptr<ZAFHartTypes::Variable> ComputeVarAttrs(
      ZAFHartTypes::IDDKernel& kernel, ZAFHartTypes::IDDComponents& components,
      const std::string& name, std::shared_ptr<ZAFHartTypes::Variable> object) override;
  std::shared_ptr<ZAFHartTypes::WriteAsOne> ComputeWriteAsOneSpecifier(
      ZAFHartTypes::IDDKernel&, ZAFHartTypes::IDDComponents&, const std::string&,
      std::shared_ptr<ZAFHartTypes::WriteAsOne> object) override {
    return object;
  }
  void ExecuteMethodBody(ZAFHartTypes::IDDKernel& kernel, ZAFHartTypes::IDDComponents& components,
                         const std::string& name, std::shared_ptr<ZAFHartTypes::DDObject> context,
                         bool inAbort) override;
  bool ComputeMethodValidity(ZAFHartTypes::IDDKernel&, ZAFHartTypes::IDDComponents&,
                             const std::string& name,
                             std::shared_ptr<ZAFHartTypes::Method> object) override;
  std::shared_ptr<ZAFHartTypes::Variable> ComputeVarType(
      ZAFHartTypes::IDDKernel& kernel, ZAFHartTypes::IDDComponents& components,
      const std::string& name, std::shared_ptr<ZAFHartTypes::Variable> object) override;
  bool ComputeVarValidity(ZAFHartTypes::IDDKernel& kernel, ZAFHartTypes::IDDComponents& components,
                          const std::string& name,
                          std::shared_ptr<ZAFHartTypes::Variable> object) override;

 private:
  void AddIfAbsent(ZAFHartTypes::IDDComponents& components,
                   const std::shared_ptr<ZAFHartTypes::DDObject>& object);
  bool IsOverridden(const ZAFHartTypes::DDObject& object) const {
    return overridden_.Contains(object.ObjectDefinition());
  }

  ZAFHartTypes::DefinitionList overridden_;  // items that the device's DD defines
};

}  // namespace ZAFHartLib
