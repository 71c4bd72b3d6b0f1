#include "linksim/DeviceRequest.h"

#include <algorithm>

#include "ddobjects/Variable.h"
#include "linksim/ItemCoding.h"

namespace HartLinkSim {

using ZAFHartTypes::DataItem;
using ZAFHartTypes::TextKey;
using ZAFHartTypes::Variant;

DeviceRequest::DeviceRequest(const ZAFHartTypes::Exchange& exchange) {
  const ZAFHartTypes::DataItemList* items = exchange.RequestItems();
  if (!items) return;
  Frame frame;
  frame.SetHexText(exchange.RequestData());
  const ItemLayout layout = LayOut(*items);
  std::size_t index = 0;
  for (const DataItem& item : *items) {
    const ItemPlace& place = layout[index++];
    auto value = ReadItem(frame, item, place);
    isComplete_ = isComplete_ && value.has_value();
    if (!value || !item.IsVariable() || place.repeated) continue;
    fields_.push_back({item.VariableDefinition().Key(), *std::move(value),
                       BoundVariable(item).TypeInfo().TypeCode(), item.IsIndex() || item.IsInfo()});
  }
}

const Variant* DeviceRequest::Echo(TextKey name) const {
  const auto found = std::find_if(fields_.begin(), fields_.end(),
                                  [name](const Field& field) { return field.name == name; });
  return found == fields_.end() ? nullptr : &found->value;
}

}  // namespace HartLinkSim
