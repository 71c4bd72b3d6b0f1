#include "ddobjects/TypeInfo.h"

#include <algorithm>

#include "types/Failure.h"

namespace ZAFHartTypes {
namespace {

const EnumList kNoItems;

bool SameItems(const EnumList& a, const EnumList& b) {
  return &a == &b || a == b;
}

}  // namespace

const EnumItem* EnumList::Find(std::int32_t value) const {
  const auto found =
      std::find_if(begin(), end(), [value](const EnumItem& item) { return item.Value() == value; });
  return found == end() ? nullptr : &*found;
}

std::int32_t TypeInfo::WireSize() const {
  switch (typeCode_) {
    case ZAFHartTypes::TypeCode::Float:
      return 4;
    case ZAFHartTypes::TypeCode::Double:
      return 8;
    case ZAFHartTypes::TypeCode::PackedAscii:
      return (size_ * 6 + 7) / 8;
    case ZAFHartTypes::TypeCode::Date:
      return 3;
    default:
      return size_;
  }
}

const EnumList& TypeInfo::EnumItems() const {
  return enumItems_ ? *enumItems_ : kNoItems;
}
const BitList& TypeInfo::BitItems() const {
  return bitItems_ ? *bitItems_ : kNoItems;
}

bool operator==(const TypeInfo& a, const TypeInfo& b) {
  return a.typeCode_ == b.typeCode_ && a.size_ == b.size_ && a.maxEnumValue_ == b.maxEnumValue_ &&
         a.displayFormat_ == b.displayFormat_ && a.indexedArray_ == b.indexedArray_ &&
         a.scalingFactor_ == b.scalingFactor_ && a.ranges_ == b.ranges_ &&
         SameItems(a.EnumItems(), b.EnumItems()) && SameItems(a.BitItems(), b.BitItems());
}

void TypeInfo::SetRangeCount(std::int32_t count) {
  if (count < 0) {
    throw Failure(ErrorNumber::InvalidArgument, "TypeInfo.SetRangeCount",
                  "A type cannot have " + std::to_string(count) + " ranges.");
  }
  ranges_.resize(static_cast<std::size_t>(count));
}

const TypeInfo::Range& TypeInfo::RangeAt(std::int32_t index) const {
  if (index < 1 || index > RangeCount())
    throw Failure(ErrorNumber::SubscriptOutOfRange, "TypeInfo.MinValue");
  return ranges_[static_cast<std::size_t>(index) - 1];
}

TypeInfo::Range& TypeInfo::EditRange(std::int32_t index) {
  if (index < 1) throw Failure(ErrorNumber::SubscriptOutOfRange, "TypeInfo.SetMinValue");
  if (index > RangeCount()) SetRangeCount(index);
  return ranges_[static_cast<std::size_t>(index) - 1];
}

}  // namespace ZAFHartTypes
