#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "dtmkit/DataModelBase.h"
#include "interfaces/IDDComponents.h"

namespace test_support {

using namespace ZAFHartTypes;  // NOLINT(google-build-using-namespace)

// A device data model that a test fills with objects and functions, and that counts its calls.
class FakeDataModel : public dtmkit::DataModelBase {
 public:
  using Compute = std::function<void(IDDKernel&, DDObject&)>;
  using Body = std::function<void(IDDKernel&, const std::shared_ptr<DDObject>& context, bool)>;

  FakeDataModel() : DataModelBase(catalogue_) {}

  // Adds an object and returns it; it is itself the one that the database will store.
  template <typename T>
  T& Add(const char* name) {
    T& object = catalogue_.Add<T>(name);
    objects.push_back(catalogue_.Prototype<T>(name));
    catalogue_.OnCompute<T>(name, [this, key = std::string(name)](dtmkit::Context& c, T& item) {
      ++computed[key];
      const auto compute = computes.find(key);
      if (compute != computes.end()) compute->second(c.Kernel(), item);
    });
    return object;
  }
  // What computing the attributes of one kind of object does, by name.
  template <typename T, typename Function>
  void OnCompute(const std::string& name, Function function) {
    computes[name] = [function](IDDKernel& kernel, DDObject& object) {
      function(kernel, static_cast<T&>(object));
    };
  }

  // The copies that are stored afterwards find their names taken.
  void InitVariables(IDDComponents& components, DefinitionList&, DefinitionList&) override {
    for (const auto& object : objects) components.DDWorkerDB()->AddObject(object);
  }
  // In the order of their addition, whatever their kinds.
  void InitRelations(IDDComponents&, DefinitionList&, DefinitionList& relations) override {
    for (const auto& object : objects) {
      const bool isRelation =
          object->MakeRefresh() || object->MakeUnit() || object->MakeWriteAsOne();
      if (isRelation) relations.Add(object->ObjectDefinition());
    }
  }
  void ExecuteMethodBody(IDDKernel& kernel, IDDComponents&, const std::string& name,
                         std::shared_ptr<DDObject> context, bool inAbort) override {
    methodRuns.push_back(name);
    const auto body = bodies.find(name);
    if (body != bodies.end()) body->second(kernel, context, inAbort);
  }
  bool ComputeVarValidity(IDDKernel&, IDDComponents&, const std::string&,
                          std::shared_ptr<Variable> object) override {
    return object->Validity();
  }

  std::vector<std::shared_ptr<DDObject>> objects;
  std::map<std::string, Compute> computes;
  std::map<std::string, Body> bodies;
  std::map<std::string, int> computed;  // how often, by name
  std::vector<std::string> methodRuns;

 private:
  dtmkit::Catalogue catalogue_;
};

}  // namespace test_support
