#pragma once

#include <vector>

#include "dtmkit/Catalogue.h"
#include "dtmkit/CommandItem.h"
#include "platform/Export.h"

namespace ZAFHartTypes::dtmkit {

// The items of one command that name array elements, and what makes them follow their indexes.
class ZAF_API ElementItems {
 public:
  // Position counts from 1 in the transaction's reply or request.
  void Add(std::int16_t transaction, bool inReply, std::size_t position, ElementPath path);
  // No item was added.
  bool IsEmpty() const { return items_.empty(); }
  // Makes every item of `command` refer to the element that its index variable now selects; one
  // that selects none leaves it as it is. Raises as the look-ups of Context do.
  void Resolve(Context& context, Command& command) const;

 private:
  struct Item {
    std::int16_t transaction;
    bool inReply;
    std::size_t position;
    ElementPath path;
  };
  std::vector<Item> items_;
};

// The variable that `path` stands for before any index has a value: that of the first element.
// Raises InvalidArgument when the array or the member is not described.
ZAF_API Definition FirstElement(const Catalogue& catalogue, const ElementPath& path);

}  // namespace ZAFHartTypes::dtmkit
