#pragma once

#include "components/DataSetOperation.h"

namespace ZAFHartLib {

// Loads the variables of a menu, or all configuration variables, from the device.
class UploadOperation : public DataSetOperation {
 public:
  using DataSetOperation::DataSetOperation;
  void Run(ZAFHartTypes::Definition& menuDefinition);

 private:
  static ZAFHartTypes::DefinitionList VariablesOf(const ZAFHartTypes::Menu& menu);
  ZAFHartTypes::DefinitionList AllUploadVariables() const;
  // Readable, neither live nor library-held.
  static bool IsConfiguration(const ZAFHartTypes::Variable& variable);
  static bool IsToBeRead(const ZAFHartTypes::Variable& variable);
  bool IsAvailable(const ZAFHartTypes::Definition& definition) const;

  void Load(const ZAFHartTypes::DefinitionList& variables, std::size_t itemCount) const;
  // Progress counts all items of the menu, of whatever kind.
  void ReadInPasses(const ZAFHartTypes::DefinitionList& variables, std::size_t itemCount) const;
  // One more try for what is still not available, live and invalid variables included.
  void ReadRest(const ZAFHartTypes::DefinitionList& variables) const;
};

}  // namespace ZAFHartLib
