#pragma once

#include "kernel/CHARTKernel.h"

namespace ZAFHartLib {

// Marks a variable as being read until it is left or the read fails.
class CHARTKernel::ReadRecursion {
 public:
  ReadRecursion(std::shared_ptr<ZAFHartTypes::IDDWorkerDB> database, Variable& variable)
      : database_(std::move(database)), definition_(variable.Definition()) {
    variable.SetInReadRecursion(true);
    database_->SetVariableInReadRecursion(definition_, true);
  }
  ~ReadRecursion() {
    ZAFHartTypes::IgnoreFailures([this] { Unmark(); });
  }
  ReadRecursion(const ReadRecursion&) = delete;
  ReadRecursion& operator=(const ReadRecursion&) = delete;

  void Leave(Variable& variable) {
    Unmark();
    variable.SetInReadRecursion(false);
  }

 private:
  void Unmark() {
    if (const auto database = std::exchange(database_, nullptr)) {
      database->SetVariableInReadRecursion(definition_, false);
    }
  }

  std::shared_ptr<ZAFHartTypes::IDDWorkerDB> database_;
  Definition definition_;
};

}  // namespace ZAFHartLib
