#pragma once

#include <optional>
#include <span>

#include "ddobjects/DataItem.h"
#include "linksim/Frame.h"
#include "linksim/ItemLayout.h"
#include "types/Variant.h"

namespace HartLinkSim {

// Puts a value into the bytes of an item's place, coded by the variable's type. A value that does
// not convert or does not fit raises, naming the variable and the value.
void WriteItem(Frame& frame, const ZAFHartTypes::DataItem& item, const ItemPlace& place,
               const ZAFHartTypes::Variant& value);
// The value of an item: a single or double for floating-point types, a text for text types, a
// 32-bit integer for all others (of unsigned values above 2147483647 the bit pattern). Nothing when
// the frame ends before the place does.
std::optional<ZAFHartTypes::Variant> ReadItem(const Frame& frame,
                                              const ZAFHartTypes::DataItem& item,
                                              const ItemPlace& place);

// The bytes of all items, with `values` in item order.
Frame EncodeItems(const ZAFHartTypes::DataItemList& items, const ItemLayout& layout,
                  std::span<const ZAFHartTypes::Variant> values);
// Lays the items out first; raises what LayOut raises.
Frame EncodeItems(const ZAFHartTypes::DataItemList& items,
                  std::span<const ZAFHartTypes::Variant> values);

}  // namespace HartLinkSim
