#pragma once

#include "ddobjects/IDDDataModel.h"
#include "support/StubComponents.h"

namespace test_support {

// A kernel whose getters have the data model compute the attributes at every look-up.
class ComputingKernel : public StubKernel {
 public:
  std::shared_ptr<Variable> GetVariable(const Definition& definition) override {
    auto variable = StubKernel::GetVariable(definition);
    variable->BeginAttributeComputation();
    variable = dataModel->ComputeVarAttrs(*this, Model(), definition.Name(), variable);
    Model().DDWorkerDB()->WriteObject(variable);
    return variable;
  }
  std::shared_ptr<Command> GetCommand(const Definition& definition) override {
    return dataModel->ComputeCmdAttrs(*this, Model(), definition.Name(),
                                      StubKernel::GetCommand(definition));
  }
  std::shared_ptr<Menu> GetMenu(const Definition& definition) override {
    return dataModel->ComputeMenuAttrs(*this, Model(), definition.Name(),
                                       StubKernel::GetMenu(definition));
  }
  std::shared_ptr<Variable> ReadVariable(const Definition& definition) override {
    return GetVariable(definition);
  }

 private:
  IDDComponents& Model() const { return *components.lock(); }
};

}  // namespace test_support
