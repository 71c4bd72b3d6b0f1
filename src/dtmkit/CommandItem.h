#pragma once

#include <optional>
#include <string>

#include "ddobjects/DataItem.h"
#include "dtmkit/Names.h"
#include "platform/Export.h"

namespace ZAFHartTypes::dtmkit {

// Where an item's variable comes from when it is an element of an item array:
// array[index].member, or array[index] without a member.
struct ElementPath {
  Definition array;
  Definition index;    // the variable whose value selects the element
  std::string member;  // "": the element itself
};

// An item of a request or reply as a data model writes it: "tag", Byte(254), Masked("limit", 0x30),
// Index("slot"), Element("points", "point", "X").
class ZAF_API CommandItem {
 public:
  // A variable whose value is sent or received for storing.
  CommandItem(const char* variable)  // NOLINT(google-explicit-constructor)
      : CommandItem(DataItem::Reference(VariableNamed(variable))) {}
  // An item made elsewhere; of an element, `item` gives the mask alone.
  explicit CommandItem(DataItem item, std::optional<ElementPath> element = {})
      : item_(std::move(item)), element_(std::move(element)) {}

  // For the command builder. Without a path the item stands as it is.
  const DataItem& Data() const { return item_; }
  const std::optional<ElementPath>& Path() const { return element_; }

 private:
  DataItem item_;
  std::optional<ElementPath> element_;
};

// A constant byte.
inline CommandItem Byte(std::uint8_t value) {
  return CommandItem(DataItem::Constant(value));
}
// Some bits of a byte group. The masks of a group stand one after the other, the one with the
// highest bit first, and cover whole bytes together.
inline CommandItem Masked(std::string_view variable, std::uint32_t mask) {
  return CommandItem(DataItem::Reference(VariableNamed(variable), mask));
}
// Sent or received without being stored.
inline CommandItem Info(std::string_view variable) {
  return CommandItem(DataItem::Reference(VariableNamed(variable)).SetIsInfo());
}
// Selects an array element; sent and received without being stored.
inline CommandItem Index(std::string_view variable) {
  return CommandItem(DataItem::Reference(VariableNamed(variable)).SetIsInfo().SetIsIndex());
}
// The variable array[index], or array[index].member. Which one that is follows the value of the
// variable `index` whenever the command's attributes are computed; a value that the array lacks
// leaves it as it was, the first element at first. `mask` as with Masked, 0 for none.
ZAF_API CommandItem Element(std::string_view array, std::string_view index,
                            std::string_view member = {}, std::uint32_t mask = 0);

}  // namespace ZAFHartTypes::dtmkit
