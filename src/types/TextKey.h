#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "platform/Export.h"

namespace ZAFHartTypes {

// UTF-8 text with letter case taken away: ASCII, Latin-1, Greek and Cyrillic letters, "°", "Ω" (the
// unit sign and the letter are one) and the like. Keys of every keyed list compare through it.
ZAF_API std::string FoldCase(std::string_view text);
// The texts differ in letter case at most.
ZAF_API bool SameKey(std::string_view a, std::string_view b);

// A name interned for the life of the process: comparing two costs a pointer comparison.
// Names come from DDs and from code, so their number is bounded.
class ZAF_API TextKey {
 public:
  // The key of "".
  TextKey() = default;
  // The key of a name, made when it is new. Threads may call it at the same time.
  static TextKey Of(std::string_view name);

  bool IsEmpty() const { return entry_ == nullptr; }
  // The name as it was first written in exactly this letter case.
  const std::string& Name() const;
  // The name as FoldCase gives it. Both are good for the life of the process.
  const std::string& Folded() const;

  // Same item: the names differ in letter case at most.
  friend bool operator==(TextKey a, TextKey b) {
    return a.entry_ == b.entry_ || a.FoldedEntry() == b.FoldedEntry();
  }
  // Spread over all bits.
  std::size_t Hash() const {
    constexpr std::size_t kSpread = 0x9E3779B97F4A7C15U;  // 2^64 / golden ratio
    const std::size_t address = std::hash<const void*>{}(FoldedEntry()) * kSpread;
    return address ^ (address >> 32U);
  }

 private:
  struct Entry;
  explicit TextKey(const Entry* entry) : entry_(entry) {}
  const std::string* FoldedEntry() const;

  const Entry* entry_ = nullptr;

  friend struct TextKeyPool;
};

// For unordered containers with keys of this type.
struct ZAF_API TextKeyHash {
  std::size_t operator()(TextKey key) const { return key.Hash(); }
};

struct TextKey::Entry {
  std::string name;
  const std::string* folded;  // shared by all names that differ in letter case only
};

inline const std::string* TextKey::FoldedEntry() const {
  return entry_ ? entry_->folded : nullptr;
}

}  // namespace ZAFHartTypes
