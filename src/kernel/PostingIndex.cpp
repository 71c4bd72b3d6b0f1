#include "kernel/PostingIndex.h"

#include <algorithm>

namespace ZAFHartLib {

void PostingIndex::Reset(std::size_t count) {
  entries_.assign(count, {});
  postings_.clear();
  watchers_.clear();
  suspects_.clear();
  for (std::size_t position = 0; position < count; ++position) suspects_.insert(position);
}

void PostingIndex::Post(std::size_t position, std::vector<Key> keys, std::vector<Key> watched,
                        bool settled) {
  Entry& entry = entries_[position];
  Replace(postings_, entry.keys, std::move(keys), position);
  Replace(watchers_, entry.watched, std::move(watched), position);
  if (settled) {
    suspects_.erase(position);
  } else {
    Suspect(position);
  }
}

void PostingIndex::BeginEvaluation(std::size_t position, std::vector<Key> watched) {
  Entry& entry = entries_[position];
  Replace(watchers_, entry.watched, std::move(watched), position);
  entry.doubted = false;
}

void PostingIndex::Suspect(std::size_t position) {
  suspects_.insert(position);
  entries_[position].doubted = true;
}

void PostingIndex::Replace(PositionsByKey& map, std::vector<Key>& old, std::vector<Key> now,
                           std::size_t position) {
  if (old == now) return;
  for (const Key key : old) {
    const auto found = map.find(key);
    if (found == map.end()) continue;
    found->second.erase(position);
    if (found->second.empty()) map.erase(found);
  }
  for (const Key key : now) map[key].insert(position);
  old = std::move(now);
}

void PostingIndex::ObjectStale(Key object) {
  const auto found = watchers_.find(object);
  if (found == watchers_.end()) return;
  for (const std::size_t position : found->second) Suspect(position);
}

std::size_t PostingIndex::Next(Key key, std::size_t from) const {
  const auto found = postings_.find(key);
  const std::size_t posted = found == postings_.end() ? kNone : FirstFrom(found->second, from);
  return std::min(posted, NextSuspect(from));
}

std::size_t PostingIndex::NextSuspect(std::size_t from) const {
  return FirstFrom(suspects_, from);
}

std::size_t PostingIndex::FirstFrom(const Positions& positions, std::size_t from) {
  const auto found = positions.lower_bound(from);
  return found == positions.end() ? kNone : *found;
}

}  // namespace ZAFHartLib
