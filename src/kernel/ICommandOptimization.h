#pragma once

#include <memory>
#include <vector>

#include "ddobjects/Command.h"

namespace ZAFHartTypes {
class IDDComponents;
}

namespace ZAFHartLib {

// A record that knows the command for some items without a search. The kernel asks its records in
// table order before it searches the command list.
class ICommandOptimization {
 public:
  virtual ~ICommandOptimization() = default;
  // The command and transaction that reads, or writes, the item; nothing when the record does not
  // know it. May set the variable that selects an array element.
  virtual std::shared_ptr<ZAFHartTypes::CommandRef> FindReadCommand(
      ZAFHartTypes::IDDComponents& components, const ZAFHartTypes::Definition& definition) = 0;
  virtual std::shared_ptr<ZAFHartTypes::CommandRef> FindWriteCommand(
      ZAFHartTypes::IDDComponents& components, const ZAFHartTypes::Definition& definition) = 0;
};

using OptimizationTable = std::vector<std::shared_ptr<ICommandOptimization>>;

}  // namespace ZAFHartLib
