#pragma once

#include <memory>

#include "interfaces/ComponentBase.h"
#include "kernel/DirectTest.h"

namespace ZAFHartLib {

// Whether a transaction reads or writes an item once the index variables of its request select the
// right array elements. Sets those variables in the worker database as it goes.
class IndexedTest {
 public:
  IndexedTest(SearchKind kind, ZAFHartTypes::IDDKernel& kernel,
              const ZAFHartTypes::ModelReference& model)
      : kind_(kind), kernel_(kernel), model_(model) {}

  // On success `command` is a copy of its own, whose transaction has the index variable bound.
  // Otherwise it may have been replaced by the command as computed for the elements tried.
  bool Passes(std::shared_ptr<ZAFHartTypes::Command>& command, std::int16_t transactionNumber,
              const ZAFHartTypes::Definition& item);

 private:
  // The request's index variable whose array holds the item, and the element that does.
  struct Selection {
    std::shared_ptr<ZAFHartTypes::Variable> index;
    ZAFHartTypes::Definition array;
    std::int32_t element = 0;
  };
  class KeptEntries;

  std::shared_ptr<ZAFHartTypes::IDDWorkerDB> Database() const { return model_.Database(); }
  std::shared_ptr<ZAFHartTypes::Variable> Stored(const ZAFHartTypes::Definition& variable) const;
  std::shared_ptr<ZAFHartTypes::ItemCollection> Collection(
      const ZAFHartTypes::Definition& collection) const;
  bool Select(const ZAFHartTypes::Transaction& transaction, const ZAFHartTypes::Definition& item,
              Selection& selection) const;
  void AdvanceOthers(const ZAFHartTypes::Transaction& transaction,
                     const ZAFHartTypes::Definition& index) const;
  // The element to take instead of the present one; nullptr to keep it.
  const ZAFHartTypes::ArrayElement* Replacement(const ZAFHartTypes::ItemArray& array,
                                                const ZAFHartTypes::ArrayElement& present,
                                                const ZAFHartTypes::DefinitionList& chosen) const;
  // The element's item is still to be read, or to be written.
  bool IsWanted(const ZAFHartTypes::Definition& item) const;

  SearchKind kind_;
  ZAFHartTypes::IDDKernel& kernel_;
  const ZAFHartTypes::ModelReference& model_;
  ZAFHartTypes::DefinitionList arrays_;  // being looked for, outermost call first
};

// The command's transaction of that number; nothing when it has none.
std::shared_ptr<ZAFHartTypes::Transaction> FindTransaction(const ZAFHartTypes::Command& command,
                                                           std::int16_t number);

}  // namespace ZAFHartLib
