#pragma once

#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "ddobjects/Definition.h"
#include "types/Failure.h"

namespace ZAFHartTypes {

// Ordered list whose items are found by a key that is compared without regard to letter case.
// Positions count from 1.
template <typename Item>
class KeyedList {
 public:
  // Raises DuplicateKey when the key is taken; the list then stays as it was.
  void Add(TextKey key, Item item) {
    if (!index_.try_emplace(key, items_.size()).second) {
      throw Failure(ErrorNumber::DuplicateKey, "KeyedList.Add");
    }
    items_.emplace_back(key, std::move(item));
  }
  bool Contains(TextKey key) const { return index_.contains(key); }
  // nullptr when absent.
  Item* Find(TextKey key) {
    const auto found = index_.find(key);
    return found == index_.end() ? nullptr : &items_[found->second].second;
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
  // Takes the item out; false when absent. Linear in the number of items behind it.
  bool Remove(TextKey key) {
    const auto found = index_.find(key);
    if (found == index_.end()) return false;
    const std::size_t position = found->second;
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(position));
    index_.erase(found);
    for (auto& [other, at] : index_) at -= at > position ? 1 : 0;
    return true;
  }
  void Clear() {
    items_.clear();
    index_.clear();
  }
  std::size_t Count() const { return items_.size(); }
  bool IsEmpty() const { return items_.empty(); }
  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }

 private:
  std::vector<std::pair<TextKey, Item>> items_;
  std::unordered_map<TextKey, std::size_t, TextKeyHash> index_;
};

}  // namespace ZAFHartTypes
