#pragma once

#include "ddobjects/Transaction.h"

namespace ZAFHartLib {

enum class SearchKind : bool { Read, Write };

// The transaction's reply gives the item's value, and its request does not name the item as INFO or
// INDEX.
bool ReadsDirectly(const ZAFHartTypes::Transaction& transaction,
                   const ZAFHartTypes::Definition& item);
// The transaction's request carries the item's value.
bool WritesDirectly(const ZAFHartTypes::Transaction& transaction,
                    const ZAFHartTypes::Definition& item);

inline bool PassesDirectTest(SearchKind kind, const ZAFHartTypes::Transaction& transaction,
                             const ZAFHartTypes::Definition& item) {
  return kind == SearchKind::Read ? ReadsDirectly(transaction, item)
                                  : WritesDirectly(transaction, item);
}

}  // namespace ZAFHartLib
