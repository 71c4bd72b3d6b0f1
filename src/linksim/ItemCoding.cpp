#include "linksim/ItemCoding.h"

#include "ddobjects/Variable.h"
#include "types/Failure.h"

namespace HartLinkSim {

using ZAFHartTypes::DataItem;
using ZAFHartTypes::DataItemList;
using ZAFHartTypes::Failure;
using ZAFHartTypes::TypeCode;
using ZAFHartTypes::Variant;

namespace {

// The three bytes of a date as the signed number that they are coded as.
std::int32_t DateNumber(const Variant& value) {
  const std::int32_t number = value.ToLong();
  return number > 0x7FFFFF && number <= 0xFFFFFF ? number - 0x1000000 : number;
}

void WriteByType(Frame& frame, TypeCode code, const ItemPlace& place, const Variant& value) {
  switch (code) {
    case TypeCode::Float:
      return frame.SetFloat(place.position, value.ToSingle());
    case TypeCode::Double:
      return frame.SetDouble(place.position, value.ToDouble());
    case TypeCode::Integer:
      return frame.SetSigned(place.position, place.size, value.ToLong());
    case TypeCode::Date:
      return frame.SetSigned(place.position, place.size, DateNumber(value));
    case TypeCode::Ascii:
    case TypeCode::Password:
      return frame.SetAscii(place.position, place.size, value.ToText());
    case TypeCode::PackedAscii:
      return frame.SetPackedAscii(place.position, place.size, value.ToText());
    default:
      return frame.SetUnsigned(place.position, place.size, value.ToBits32());
  }
}

Variant ReadByType(const Frame& frame, TypeCode code, const ItemPlace& place) {
  switch (code) {
    case TypeCode::Float:
      return frame.Float(place.position);
    case TypeCode::Double:
      return frame.Double(place.position);
    case TypeCode::Integer:
    case TypeCode::Date:
      return frame.Signed(place.position, place.size);
    case TypeCode::Ascii:
    case TypeCode::Password:
      return frame.Ascii(place.position, place.size);
    case TypeCode::PackedAscii:
      return frame.PackedAscii(place.position, place.size);
    default:
      return static_cast<std::int32_t>(frame.Unsigned(place.position, place.size));
  }
}

// Constants are coded like an unsigned variable.
TypeCode CodeOf(const DataItem& item) {
  return item.IsVariable() ? BoundVariable(item).TypeInfo().TypeCode() : TypeCode::Unsigned;
}

Failure Explained(const Failure& failure, const DataItem& item, const Variant& value) {
  const std::string name = item.IsVariable() ? "variable \"" + item.VariableDefinition().Name() +
                                                   "\", type " + DescribeType(CodeOf(item))
                                             : "constant";
  return Failure(failure.Number(), "HartLinkSim.ItemCoding",
                 "The value \"" + value.Describe() + "\" of the " + name +
                     " cannot be sent: " + failure.Description());
}

}  // namespace

void WriteItem(Frame& frame, const DataItem& item, const ItemPlace& place, const Variant& value) {
  try {
    if (place.mask != 0) {
      frame.SetBits(place.position, place.mask, place.size, value.ToBits32());
    } else {
      WriteByType(frame, CodeOf(item), place, value);
    }
  } catch (const Failure& failure) {
    throw Explained(failure, item, value);
  }
}

std::optional<Variant> ReadItem(const Frame& frame, const DataItem& item, const ItemPlace& place) {
  if (place.position + place.size > frame.Length()) return std::nullopt;
  if (place.mask != 0) {
    return static_cast<std::int32_t>(frame.Bits(place.position, place.mask, place.size));
  }
  return ReadByType(frame, CodeOf(item), place);
}

Frame EncodeItems(const DataItemList& items, const ItemLayout& layout,
                  std::span<const Variant> values) {
  Frame frame;
  frame.SetLength(LengthOf(layout));
  std::size_t index = 0;
  for (const DataItem& item : items) {
    if (!layout[index].repeated) WriteItem(frame, item, layout[index], values[index]);
    ++index;
  }
  return frame;
}

Frame EncodeItems(const DataItemList& items, std::span<const Variant> values) {
  return EncodeItems(items, LayOut(items), values);
}

}  // namespace HartLinkSim
