#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ddobjects/Codes.h"
#include "ddobjects/EnumList.h"
#include "platform/Export.h"
#include "types/Variant.h"

namespace ZAFHartTypes {

class ItemArray;

// Type of a variable's value. Lists are shared between all variables of one type and immutable.
class ZAF_API TypeInfo {
 public:
  // NotComputed at first.
  ZAFHartTypes::TypeCode TypeCode() const { return typeCode_; }
  void SetTypeCode(ZAFHartTypes::TypeCode code) { typeCode_ = code; }

  // Bytes on the wire, 1 to 4 for integral types; for texts the maximum length in characters. 0 is
  // none: an integral value is then checked against 32 bits, and a text may have any length.
  std::int32_t Size() const { return size_; }
  void SetSize(std::int32_t size) { size_ = size; }
  // Bytes that a value takes on the wire: four characters of Packed ASCII go into three bytes, a
  // date takes three.
  std::int32_t WireSize() const;

  // Values of an enumerated and bits of a bit-enumerated type, empty when there are none. A list
  // that is given as a pointer is shared; nothing as a pointer is none.
  const EnumList& EnumItems() const;
  void SetEnumItems(std::shared_ptr<const EnumList> items) { enumItems_ = std::move(items); }
  void SetEnumItems(EnumList items) {
    enumItems_ = std::make_shared<const EnumList>(std::move(items));
  }
  const BitList& BitItems() const;
  void SetBitItems(std::shared_ptr<const BitList> items) { bitItems_ = std::move(items); }
  // Highest value of the enumeration, for hosts; 0 at first. The library sets it where it makes
  // the type and checks values against EnumItems alone.
  std::int32_t MaxEnumValue() const { return maxEnumValue_; }
  void SetMaxEnumValue(std::int32_t value) { maxEnumValue_ = value; }

  // MIN_VALUE/MAX_VALUE pairs, numbered from 1. An empty limit is none. Setting a limit makes room
  // for it. Reading one outside 1..RangeCount() raises SubscriptOutOfRange, setting one below 1
  // too. A value need only lie in one of the ranges; limits belong to them.
  std::int32_t RangeCount() const { return static_cast<std::int32_t>(ranges_.size()); }
  // Drops surplus pairs; raises InvalidArgument for a negative count.
  void SetRangeCount(std::int32_t count);
  const Variant& MinValue(std::int32_t index) const { return RangeAt(index).minimum; }
  const Variant& MaxValue(std::int32_t index) const { return RangeAt(index).maximum; }
  void SetMinValue(std::int32_t index, Variant value) {
    EditRange(index).minimum = std::move(value);
  }
  void SetMaxValue(std::int32_t index, Variant value) {
    EditRange(index).maximum = std::move(value);
  }

  // Factor that a number is multiplied by for display; empty is 1. Values, ranges and the wire are
  // unscaled.
  const Variant& ScalingFactor() const { return scalingFactor_; }
  void SetScalingFactor(Variant factor) { scalingFactor_ = std::move(factor); }
  // C display format without "%", of the conversions f, i, d, e and E: "8.3f". Empty or another
  // conversion: the plain number.
  const std::string& DisplayFormat() const { return displayFormat_; }
  void SetDisplayFormat(std::string format) { displayFormat_ = std::move(format); }

  // The item array that an index type refers to, shared; may be nothing, then any index will do.
  const std::shared_ptr<const ItemArray>& IndexedArray() const { return indexedArray_; }
  void SetIndexedArray(std::shared_ptr<const ItemArray> array) { indexedArray_ = std::move(array); }

  // Same contents; of an item array the same object.
  friend ZAF_API bool operator==(const TypeInfo& a, const TypeInfo& b);

 private:
  struct Range {
    Variant minimum;
    Variant maximum;
    friend bool operator==(const Range&, const Range&) = default;
  };
  const Range& RangeAt(std::int32_t index) const;
  Range& EditRange(std::int32_t index);

  ZAFHartTypes::TypeCode typeCode_ = ZAFHartTypes::TypeCode::NotComputed;
  std::int32_t size_ = 0;
  std::int32_t maxEnumValue_ = 0;
  std::shared_ptr<const EnumList> enumItems_;
  std::shared_ptr<const BitList> bitItems_;
  std::vector<Range> ranges_;
  Variant scalingFactor_;
  std::string displayFormat_;
  std::shared_ptr<const ItemArray> indexedArray_;
};

}  // namespace ZAFHartTypes
