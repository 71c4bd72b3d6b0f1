#pragma once

#include "components/DataSetOperation.h"

namespace ZAFHartLib {

// Writes every variable that is to be written, dependencies first.
class WriteChangesOperation : public DataSetOperation {
 public:
  using DataSetOperation::DataSetOperation;
  void Run();

 private:
  struct Pass {
    std::size_t deferred = 0;
    bool wroteSomething = false;
  };
  void WriteInPasses(const MarkedVariables& pending) const;
  Pass RunPass(const MarkedVariables& pending) const;
  bool HasPendingDependency(const ZAFHartTypes::Variable& variable) const;
  bool IsPending(const ZAFHartTypes::Definition& definition) const;
  void GiveUpWriting(const ZAFHartTypes::Variable& variable) const;
  // False when the exchange failed and the pass is to end.
  bool Write(const ZAFHartTypes::Variable& variable) const;
};

// Writes every writable variable of a menu.
class DownloadOperation : public DataSetOperation {
 public:
  using DataSetOperation::DataSetOperation;
  void Run(ZAFHartTypes::Definition& menuDefinition);

 private:
  void MarkToBeWritten(const ZAFHartTypes::Menu& menu) const;
};

}  // namespace ZAFHartLib
