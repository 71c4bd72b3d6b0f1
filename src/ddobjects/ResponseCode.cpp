#include "ddobjects/ResponseCode.h"

#include <algorithm>

#include "types/Failure.h"

namespace ZAFHartTypes {

const ResponseCode* ResponseCodeList::Find(std::int32_t code) const {
  const auto found = std::find_if(
      begin(), end(), [code](const ResponseCode& each) { return each.Value() == code; });
  return found == end() ? nullptr : &*found;
}

const ResponseCode& ResponseCodeList::Item(std::int32_t code) const {
  if (const ResponseCode* found = Find(code)) return *found;
  throw Failure(ErrorNumber::SubscriptOutOfRange, "ResponseCodeList.Item",
                "Response code " + std::to_string(code) + " is not defined.");
}

}  // namespace ZAFHartTypes
