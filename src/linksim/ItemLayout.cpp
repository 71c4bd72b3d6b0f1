#include "linksim/ItemLayout.h"

#include <algorithm>
#include <array>

#include "ddobjects/Variable.h"
#include "linksim/Frame.h"
#include "types/Failure.h"

namespace HartLinkSim {

using ZAFHartTypes::DataItem;
using ZAFHartTypes::DataItemList;
using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Failure;
using ZAFHartTypes::TypeCode;

namespace {

constexpr std::size_t kGroupBits = 32;

std::size_t WireSizeOf(const DataItem& item) {
  if (!item.IsVariable()) return 1;
  const ZAFHartTypes::TypeInfo& type = BoundVariable(item).TypeInfo();
  if (!ZAFHartTypes::HasWireForm(type.TypeCode())) {
    throw Failure(ErrorNumber::InvalidArgument, "HartLinkSim.ItemLayout",
                  "The variable \"" + item.VariableDefinition().Name() + "\" has the type " +
                      DescribeType(type.TypeCode()) +
                      ", which has no form on the wire. Take it out of the command or change its "
                      "type.");
  }
  return static_cast<std::size_t>(std::max(0, type.WireSize()));
}

// Masked items in a row that share a group of bytes.
class MaskGroup {
 public:
  std::size_t Size() const { return size_; }

  void Add(std::uint32_t mask) {
    mask_ |= mask;
    const std::string bits = Frame::BitText(mask_, kGroupBits);
    for (std::size_t size = kGroupBits / 8; size > 0 && size_ == 0; --size) {
      if (bits.find('1', (size - 1) * 8) != std::string::npos) size_ = size;
    }
    isComplete_ = size_ > 0 && bits.find('0') >= size_ * 8;
  }
  bool IsComplete() const { return isComplete_; }

 private:
  std::uint32_t mask_ = 0;
  std::size_t size_ = 0;
  bool isComplete_ = false;
};

// Gives each item its place behind the one before it.
class Walk {
 public:
  explicit Walk(const DataItemList& items) : items_(items) { layout_.reserve(items.Count()); }

  ItemLayout Run() {
    for (const DataItem& item : items_) layout_.push_back(PlaceOf(item));
    return std::move(layout_);
  }

 private:
  ItemPlace PlaceOf(const DataItem& item) {
    if (item.IsVariable()) BoundVariable(item);
    if (const ItemPlace* earlier = EarlierPlace(item)) {
      ItemPlace place = *earlier;
      place.repeated = true;
      return place;
    }
    if (item.Mask() != 0) return MaskedPlace(item.Mask());
    EndGroup();
    const ItemPlace place{position_, WireSizeOf(item)};
    position_ += place.size;
    return place;
  }

  ItemPlace MaskedPlace(std::uint32_t mask) {
    group_.Add(mask);
    const ItemPlace place{position_, group_.Size(), mask};
    if (group_.IsComplete()) EndGroup();
    return place;
  }

  void EndGroup() {
    position_ += group_.Size();
    group_ = {};
  }

  const ItemPlace* EarlierPlace(const DataItem& item) const {
    if (!item.IsVariable()) return nullptr;
    for (std::size_t i = 0; i < layout_.size(); ++i) {
      const DataItem& other = items_.Item(i + 1);
      if (other.IsVariable() && other.VariableDefinition().IsSameAs(item.VariableDefinition())) {
        return &layout_[i];
      }
    }
    return nullptr;
  }

  const DataItemList& items_;
  ItemLayout layout_;
  MaskGroup group_;
  std::size_t position_ = 0;
};

}  // namespace

ItemLayout LayOut(const DataItemList& items) {
  return Walk(items).Run();
}

std::size_t LengthOf(const ItemLayout& layout) {
  std::size_t length = 0;
  for (const ItemPlace& place : layout) length = std::max(length, place.position + place.size);
  return length;
}

std::string DescribeType(TypeCode code) {
  constexpr std::array<const char*, 15> kNames{
      "Float",         "Double", "Integer", "Unsigned",    "Enumerated",
      "BitEnumerated", "Index",  "Ascii",   "PackedAscii", "Password",
      "BitString",     "Date",   "Time",    "DateAndTime", "Duration"};
  const auto number = static_cast<std::int32_t>(code);
  const bool known = number >= 0 && static_cast<std::size_t>(number) < kNames.size();
  return std::string(known ? kNames[static_cast<std::size_t>(number)] : "unknown") + " (" +
         std::to_string(number) + ")";
}

ZAFHartTypes::Variable& BoundVariable(const DataItem& item) {
  if (item.Variable()) return *item.Variable();
  throw Failure(ErrorNumber::ObjectNotSet, "HartLinkSim.ItemLayout",
                "The item \"" + item.VariableDefinition().Name() +
                    "\" of the command is bound to no variable.");
}

}  // namespace HartLinkSim
