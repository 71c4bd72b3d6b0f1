#pragma once

#include <functional>
#include <optional>

#include "ddobjects/ItemArray.h"
#include "ddobjects/Variable.h"

namespace ZAFHartLib {

// Gives the collection of a definition; nothing for an unknown name.
using CollectionLookup =
    std::function<std::shared_ptr<ZAFHartTypes::ItemCollection>(const ZAFHartTypes::Definition&)>;

// The item array that an index variable selects from; nullptr for another variable.
const ZAFHartTypes::ItemArray* IndexedArrayOf(const ZAFHartTypes::Variable& variable);

// Calls `visit` with the item of an array element and, where that is a collection, with its members
// and those of the collections nested in it, in order, until it answers true. True when it did.
bool VisitElementItem(const ZAFHartTypes::Definition& item, const CollectionLookup& lookup,
                      const std::function<bool(const ZAFHartTypes::Definition&)>& visit);

// Index of the array's first element that is, or contains, the item; nothing when there is none.
std::optional<std::int32_t> FindElementOf(const ZAFHartTypes::ItemArray& array,
                                          const ZAFHartTypes::Definition& item,
                                          const CollectionLookup& lookup);

// The first element whose item is wanted and not chosen yet; nullptr when there is none.
const ZAFHartTypes::ArrayElement* NextWantedElement(
    const ZAFHartTypes::ItemArray& array, const ZAFHartTypes::DefinitionList& chosen,
    const std::function<bool(const ZAFHartTypes::Definition&)>& isWanted);

}  // namespace ZAFHartLib
