#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <utility>
#include <vector>

#include "types/Failure.h"
#include "types/TextKey.h"

namespace ZAFHartTypes {

// Ordered list whose items are found by a key that is compared without regard to letter case.
// Positions count from 1. Iteration yields pairs of key and item in the order of adding; adding and
// removing makes references to items invalid.
template <typename Item>
class KeyedList {
 public:
  // Raises DuplicateKey when the key is taken; the list then stays as it was.
  void Add(TextKey key, Item item) {
    if (Contains(key)) throw Failure(ErrorNumber::DuplicateKey, "KeyedList.Add");
    items_.emplace_back(key, std::move(item));
    if (2 * items_.size() > slots_.size()) {
      BuildIndex();
    } else {
      slots_[SlotOf(key)] = static_cast<Slot>(items_.size());
    }
  }
  bool Contains(TextKey key) const { return PositionOf(key) != kNone; }
  // nullptr when absent.
  Item* Find(TextKey key) {
    const std::size_t position = PositionOf(key);
    return position == kNone ? nullptr : &items_[position - 1].second;
  }
  const Item* Find(TextKey key) const { return const_cast<KeyedList*>(this)->Find(key); }
  // Raises InvalidProcedureCall for an unknown key.
  const Item& At(TextKey key) const {
    if (const Item* item = Find(key)) return *item;
    throw Failure(ErrorNumber::InvalidProcedureCall, "KeyedList.Item");
  }
  // Raises SubscriptOutOfRange for a position outside 1..Count().
  const Item& At(std::size_t position) const {
    if (position < 1 || position > items_.size()) {
      throw Failure(ErrorNumber::SubscriptOutOfRange, "KeyedList.Item");
    }
    return items_[position - 1].second;
  }
  // Takes the item out; false when absent. Linear in the number of items.
  bool Remove(TextKey key) {
    const std::size_t position = PositionOf(key);
    if (position == kNone) return false;
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(position - 1));
    BuildIndex();
    return true;
  }
  void Clear() {
    items_.clear();
    slots_.clear();
  }
  std::size_t Count() const { return items_.size(); }
  bool IsEmpty() const { return items_.empty(); }
  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }

 private:
  using Slot = std::uint32_t;  // a position
  static constexpr Slot kNone = 0;

  std::size_t PositionOf(TextKey key) const { return slots_.empty() ? kNone : slots_[SlotOf(key)]; }
  // The slot that holds the key's position, or the free one that would. At least half of all slots
  // are free.
  std::size_t SlotOf(TextKey key) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = key.Hash() & mask;
    while (slots_[slot] != kNone && items_[slots_[slot] - 1].first != key) slot = (slot + 1) & mask;
    return slot;
  }
  void BuildIndex() {
    constexpr std::size_t kFewest = 8;
    slots_.assign(std::bit_ceil(std::max(kFewest, 4 * items_.size())), kNone);
    for (std::size_t position = 1; position <= items_.size(); ++position) {
      slots_[SlotOf(items_[position - 1].first)] = static_cast<Slot>(position);
    }
  }

  std::vector<std::pair<TextKey, Item>> items_;
  std::vector<Slot> slots_;  // a power of two; look-ups touch one slot and one item
};

}  // namespace ZAFHartTypes
