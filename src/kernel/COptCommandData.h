#pragma once

#include <string>

#include "ddobjects/KeyedList.h"
#include "interfaces/IDDKernel.h"
#include "kernel/ICommandOptimization.h"
#include "platform/Object.h"

namespace ZAFHartLib {

// A command that reads or writes the elements of an item array, named by the DTM's optimisation
// data: a search for an element goes straight to it.
class COptCommandData : public platform::Object, public ICommandOptimization {
 public:
  // Names of the command, of the item array and of the variable of the request that selects the
  // element. Only the first call has an effect.
  void Initialize(const std::string& command, std::int32_t transactionNumber,
                  const std::string& array, const std::string& arrayIndex);

  // Select the element by writing the index variable. Nothing for an item that is no element, for a
  // command of the other direction, and for names that are none of the DTM's; a transaction without
  // the item is told to the trace.
  std::shared_ptr<ZAFHartTypes::CommandRef> FindReadCommand(
      ZAFHartTypes::IDDComponents& components, const ZAFHartTypes::Definition& definition) override;
  std::shared_ptr<ZAFHartTypes::CommandRef> FindWriteCommand(
      ZAFHartTypes::IDDComponents& components, const ZAFHartTypes::Definition& definition) override;

 private:
  enum class State : std::int16_t { New = 0, Defined = 1, Resolved = 2, Unusable = 3 };

  std::shared_ptr<ZAFHartTypes::CommandRef> Find(ZAFHartTypes::IDDComponents& components,
                                                 const ZAFHartTypes::Definition& definition,
                                                 const bool& allowed);
  void Resolve(ZAFHartTypes::IDDKernel& kernel);
  bool Holds(const ZAFHartTypes::CommandRef& reference,
             const ZAFHartTypes::Definition& definition) const;
  void TraceDiagnostic(ZAFHartTypes::IDDComponents& components) const;

  State state_ = State::New;
  ZAFHartTypes::Definition command_;
  std::int16_t transactionNumber_ = 0;
  ZAFHartTypes::Definition array_;
  ZAFHartTypes::Definition arrayIndex_;
  ZAFHartTypes::KeyedList<std::int32_t> elements_;  // element index by item name
  bool reads_ = false;
  bool writes_ = false;
  std::string diagnostic_;
  bool hasDiagnostic_ = false;
};

}  // namespace ZAFHartLib
