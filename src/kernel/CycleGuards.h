#pragma once

#include "kernel/DependencyFrame.h"
#include "kernel/KernelTemplates.h"

// Guards of the typed getters against an evaluation that asks for itself. Each marks its object as
// being computed until it is left or the computation fails.
namespace ZAFHartLib {

// For the kinds that a data model may well compute within themselves: ends an evaluation that never
// would.
class CHARTKernel::NestingGuard {
 public:
  NestingGuard(CHARTKernel& kernel, const std::shared_ptr<DDObject>& object) {
    constexpr int kMostNested = 8;
    const Definition& definition = object->ObjectDefinition();
    if (DependencyFrame::Nesting(kernel.innermostFrame_, definition) < kMostNested) return;
    throw ZAFHartTypes::Failure(
        ZAFHartTypes::ErrorNumber::Unexpected, "IDDKernel",
        "The attributes of \"" + definition.Name() + "\" are computed from themselves.");
  }
  bool IsCyclic() const { return false; }
  template <typename Step>
  void Run(Step&& step) {
    step();
  }
  void Leave(DDObject&) {}
};

// A variable met again while it is computed is computed once more, with failures tolerated; met a
// third time it is reported.
class CHARTKernel::VariableGuard {
 public:
  VariableGuard(CHARTKernel& kernel, const std::shared_ptr<Variable>& variable)
      : kernel_(kernel), database_(kernel.Database()), definition_(variable->Definition()) {
    if (variable->InRecursion()) {
      if (kernel.context_.cycleFlag) {
        cyclic_ = true;
        ZAFHartTypes::IgnoreFailures(
            [&] { kernel.Report(variable, ZAFHartTypes::ItemIndex::CyclicVariable); });
        return;
      }
      tolerant_ = true;
      kernel.context_.cycleFlag = true;
    }
    marked_ = true;
    Run([this] { database_->SetVariableInRecursion(definition_, true); });
  }
  ~VariableGuard() {
    if (tolerant_) kernel_.context_.cycleFlag = false;
    Unmark();
  }
  VariableGuard(const VariableGuard&) = delete;
  VariableGuard& operator=(const VariableGuard&) = delete;

  // Reported: the variable is to be handed out as it is.
  bool IsCyclic() const { return cyclic_; }
  template <typename Step>
  void Run(Step&& step) {
    if (tolerant_) {
      ZAFHartTypes::IgnoreFailures(step);
    } else {
      step();
    }
  }
  void Leave(Variable& variable) {
    Unmark();
    variable.SetInRecursion(false);
  }

 private:
  void Unmark() {
    if (!marked_) return;
    marked_ = false;
    ZAFHartTypes::IgnoreFailures([this] { database_->SetVariableInRecursion(definition_, false); });
  }

  CHARTKernel& kernel_;
  std::shared_ptr<ZAFHartTypes::IDDWorkerDB> database_;
  Definition definition_;
  bool cyclic_ = false;
  bool tolerant_ = false;
  bool marked_ = false;
};

// A command met again while it is computed is reported at once.
class CHARTKernel::CommandGuard {
 public:
  CommandGuard(CHARTKernel& kernel, const std::shared_ptr<Command>& command)
      : database_(kernel.Database()), definition_(command->Definition()) {
    if (command->InRecursion()) {
      cyclic_ = true;
      kernel.Report(command, ZAFHartTypes::ItemIndex::CyclicCommand);
      return;
    }
    marked_ = true;
    database_->SetCommandInRecursion(definition_, true);
  }
  ~CommandGuard() { Unmark(); }
  CommandGuard(const CommandGuard&) = delete;
  CommandGuard& operator=(const CommandGuard&) = delete;

  bool IsCyclic() const { return cyclic_; }
  template <typename Step>
  void Run(Step&& step) {
    step();
  }
  void Leave(Command& command) {
    Unmark();
    command.SetInRecursion(false);
  }

 private:
  void Unmark() {
    if (!marked_) return;
    marked_ = false;
    ZAFHartTypes::IgnoreFailures([this] { database_->SetCommandInRecursion(definition_, false); });
  }

  std::shared_ptr<ZAFHartTypes::IDDWorkerDB> database_;
  Definition definition_;
  bool cyclic_ = false;
  bool marked_ = false;
};

}  // namespace ZAFHartLib
