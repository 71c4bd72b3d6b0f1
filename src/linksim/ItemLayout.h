#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "ddobjects/DataItem.h"

namespace HartLinkSim {

// Where one item of a request or reply stands in the bytes.
struct ItemPlace {
  std::size_t position = 0;  // of the first byte; of a masked item that of its group
  std::size_t size = 0;      // in bytes; of a masked item that of its group
  std::uint32_t mask = 0;    // bits of the group that the item takes; 0: all of it
  bool repeated = false;     // the variable stands in the list before: these are the bytes there
};

// The places of a list's items, one per item, in item order.
//
// A constant takes one byte, a variable what its type takes, however often it is named. Masked
// items in a row share a group, whose size in bytes follows from the highest bit of its first mask;
// the group ends when its masks have filled it, or with the next item that has no mask.
//
// Raises ObjectNotSet for an item that is bound to no variable, InvalidArgument for a variable
// whose type has no form on the wire (bit strings, times, durations); both name the variable.
using ItemLayout = std::vector<ItemPlace>;
ItemLayout LayOut(const ZAFHartTypes::DataItemList& items);

// Bytes that the items take together.
std::size_t LengthOf(const ItemLayout& layout);

// "Float (0)", "Index (6)", …
std::string DescribeType(ZAFHartTypes::TypeCode code);

// The variable that is bound to an item; raises ObjectNotSet naming the item when none is.
ZAFHartTypes::Variable& BoundVariable(const ZAFHartTypes::DataItem& item);

}  // namespace HartLinkSim
