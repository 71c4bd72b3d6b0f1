#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "ddobjects/IDDDataModel.h"
#include "interfaces/IDDComponents.h"

namespace test_support {

using namespace ZAFHartTypes;  // NOLINT(google-build-using-namespace)

// A device data model that a test fills with objects and functions, and that counts its calls.
class FakeDataModel : public platform::Object, public IDDDataModel {
 public:
  using Compute = std::function<void(IDDKernel&, DDObject&)>;
  using Body = std::function<void(IDDKernel&, const std::shared_ptr<DDObject>& context, bool)>;

  // Adds an object, to be stored by the Init… operation of its kind, and returns it.
  template <typename T>
  T& Add(const char* name) {
    auto object = MakeObject<T>(name);
    objects.push_back(object);
    return *object;
  }
  // What computing the attributes of one kind of object does, by name.
  template <typename T, typename Function>
  void OnCompute(const std::string& name, Function function) {
    computes[name] = [function](IDDKernel& kernel, DDObject& object) {
      function(kernel, static_cast<T&>(object));
    };
  }

  std::shared_ptr<platform::Object> GetCompilerAttrs() override { return nullptr; }
  using Lists = DefinitionList;
  void InitVariables(IDDComponents& c, Lists& commands, Lists& relations) override {
    Store(c, commands, relations, {ObjectKind::Variable});
  }
  void InitCommands(IDDComponents& c, Lists& commands, Lists& relations) override {
    Store(c, commands, relations, {ObjectKind::Command});
  }
  void InitCollections(IDDComponents& c, Lists& commands, Lists& relations) override {
    Store(c, commands, relations, {ObjectKind::Collection});
  }
  void InitMenus(IDDComponents& c, Lists& commands, Lists& relations) override {
    Store(c, commands, relations, {ObjectKind::Menu});
  }
  void InitEditDisplays(IDDComponents& c, Lists& commands, Lists& relations) override {
    Store(c, commands, relations, {ObjectKind::EditDisplay});
  }
  void InitMethods(IDDComponents& c, Lists& commands, Lists& relations) override {
    Store(c, commands, relations, {ObjectKind::Method});
  }
  void InitRelations(IDDComponents& c, Lists& commands, Lists& relations) override {
    Store(c, commands, relations,
          {ObjectKind::RefreshRelation, ObjectKind::UnitRelation, ObjectKind::WriteAsOne});
  }
  void InitArrays(IDDComponents& c, Lists& commands, Lists& relations) override {
    Store(c, commands, relations, {ObjectKind::ItemArray});
  }

  template <typename T>
  using Ptr = std::shared_ptr<T>;
  Ptr<ItemArray> ComputeArrayAttrs(IDDKernel& k, IDDComponents&, const std::string& n,
                                   Ptr<ItemArray> o) override {
    return Run(k, n, std::move(o));
  }
  Ptr<Command> ComputeCmdAttrs(IDDKernel& k, IDDComponents&, const std::string& n,
                               Ptr<Command> o) override {
    return Run(k, n, std::move(o));
  }
  Ptr<ItemCollection> ComputeCollectionAttrs(IDDKernel& k, IDDComponents&, const std::string& n,
                                             Ptr<ItemCollection> o) override {
    return Run(k, n, std::move(o));
  }
  Ptr<EditDisplay> ComputeEditDisplayAttrs(IDDKernel& k, IDDComponents&, const std::string& n,
                                           Ptr<EditDisplay> o) override {
    return Run(k, n, std::move(o));
  }
  Ptr<Menu> ComputeMenuAttrs(IDDKernel& k, IDDComponents&, const std::string& n,
                             Ptr<Menu> o) override {
    return Run(k, n, std::move(o));
  }
  Ptr<Method> ComputeMethodAttrs(IDDKernel& k, IDDComponents&, const std::string& n,
                                 Ptr<Method> o) override {
    return Run(k, n, std::move(o));
  }
  Ptr<RefreshRelation> ComputeRefreshSpecifier(IDDKernel& k, IDDComponents&, const std::string& n,
                                               Ptr<RefreshRelation> o) override {
    return Run(k, n, std::move(o));
  }
  Ptr<UnitRelation> ComputeUnitSpecifier(IDDKernel& k, IDDComponents&, const std::string& n,
                                         Ptr<UnitRelation> o) override {
    return Run(k, n, std::move(o));
  }
  Ptr<Variable> ComputeVarAttrs(IDDKernel& k, IDDComponents&, const std::string& n,
                                Ptr<Variable> o) override {
    return Run(k, n, std::move(o));
  }
  Ptr<WriteAsOne> ComputeWriteAsOneSpecifier(IDDKernel& k, IDDComponents&, const std::string& n,
                                             Ptr<WriteAsOne> o) override {
    return Run(k, n, std::move(o));
  }
  void ExecuteMethodBody(IDDKernel& kernel, IDDComponents&, const std::string& name,
                         std::shared_ptr<DDObject> context, bool inAbort) override {
    methodRuns.push_back(name);
    const auto body = bodies.find(name);
    if (body != bodies.end()) body->second(kernel, context, inAbort);
  }
  bool ComputeMethodValidity(IDDKernel&, IDDComponents&, const std::string&,
                             Ptr<Method> o) override {
    return o->IsValid();
  }
  Ptr<Variable> ComputeVarType(IDDKernel&, IDDComponents&, const std::string&,
                               Ptr<Variable> o) override {
    return o;
  }
  bool ComputeVarValidity(IDDKernel&, IDDComponents&, const std::string&,
                          Ptr<Variable> o) override {
    return o->Validity();
  }

  std::vector<std::shared_ptr<DDObject>> objects;
  std::map<std::string, Compute> computes;
  std::map<std::string, Body> bodies;
  std::map<std::string, int> computed;  // how often, by name
  std::vector<std::string> methodRuns;

 private:
  void Store(IDDComponents& components, DefinitionList& commands, DefinitionList& relations,
             std::initializer_list<ObjectKind> kinds) {
    for (const auto& object : objects) {
      const ObjectKind kind = object->Kind();
      if (std::find(kinds.begin(), kinds.end(), kind) == kinds.end()) continue;
      components.DDWorkerDB()->AddObject(object);
      if (kind == ObjectKind::Command) commands.Add(object->ObjectDefinition());
      if (kinds.size() > 1) relations.Add(object->ObjectDefinition());
    }
  }
  template <typename T>
  Ptr<T> Run(IDDKernel& kernel, const std::string& name, Ptr<T> object) {
    ++computed[name];
    const auto compute = computes.find(name);
    if (compute != computes.end()) compute->second(kernel, *object);
    return object;
  }
};

}  // namespace test_support
