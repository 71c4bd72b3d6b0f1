#pragma once

#include <cstddef>
#include <set>
#include <vector>

#include "ddobjects/KeyedList.h"

namespace ZAFHartLib {

// Which entries of an ordered list are worth a visit for a key, when visiting all would be too
// slow. An entry is posted under the keys it answers to and watches the objects that its posting
// was made from. It is suspect, to be visited for every key, before its first posting and from the
// moment that a watched object goes stale until it is posted anew.
class PostingIndex {
 public:
  using Key = ZAFHartTypes::TextKey;
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  // Starts anew with `count` suspect entries.
  void Reset(std::size_t count);
  std::size_t Count() const { return entries_.size(); }

  // Replaces the posting of an entry. Unless it is `settled`, the entry stays suspect.
  void Post(std::size_t position, std::vector<Key> keys, std::vector<Key> watched, bool settled);
  // The entry is about to be evaluated, then posted as settled only unless IsDoubted: what it
  // watches may go stale meanwhile.
  void BeginEvaluation(std::size_t position, std::vector<Key> watched);
  bool IsDoubted(std::size_t position) const { return entries_[position].doubted; }
  void Suspect(std::size_t position);
  bool IsSuspect(std::size_t position) const { return suspects_.contains(position); }
  void ObjectStale(Key object);

  // First position from `from` on that is posted under `key` or suspect; kNone at the end.
  std::size_t Next(Key key, std::size_t from) const;
  std::size_t NextSuspect(std::size_t from) const;

 private:
  using Positions = std::vector<std::size_t>;  // ascending, few as a rule
  using PositionsByKey = ZAFHartTypes::KeyedList<Positions>;
  struct Entry {
    std::vector<Key> keys;
    std::vector<Key> watched;
    bool doubted = false;  // suspected since its evaluation began
  };
  static void Replace(PositionsByKey& map, std::vector<Key>& old, std::vector<Key> now,
                      std::size_t position);

  std::vector<Entry> entries_;
  PositionsByKey postings_;
  PositionsByKey watchers_;
  std::set<std::size_t> suspects_;
};

}  // namespace ZAFHartLib
