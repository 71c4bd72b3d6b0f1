#include "kernel/PostingIndex.h"

#include <algorithm>

namespace ZAFHartLib {
namespace {

void Insert(std::vector<std::size_t>& ascending, std::size_t position) {
  const auto place = std::lower_bound(ascending.begin(), ascending.end(), position);
  if (place == ascending.end() || *place != position) ascending.insert(place, position);
}

void Erase(std::vector<std::size_t>& ascending, std::size_t position) {
  const auto place = std::lower_bound(ascending.begin(), ascending.end(), position);
  if (place != ascending.end() && *place == position) ascending.erase(place);
}

}  // namespace

void PostingIndex::Reset(std::size_t count) {
  entries_.assign(count, {});
  postings_.Clear();
  watchers_.Clear();
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
    if (Positions* positions = map.Find(key)) Erase(*positions, position);
  }
  for (const Key key : now) {
    if (!map.Contains(key)) map.Add(key, {});
    Insert(*map.Find(key), position);
  }
  old = std::move(now);
}

void PostingIndex::ObjectStale(Key object) {
  const Positions* watching = watchers_.Find(object);
  if (!watching) return;
  for (const std::size_t position : *watching) Suspect(position);
}

std::size_t PostingIndex::Next(Key key, std::size_t from) const {
  const Positions* positions = postings_.Find(key);
  const std::size_t suspect = NextSuspect(from);
  if (!positions) return suspect;
  const auto posted = std::lower_bound(positions->begin(), positions->end(), from);
  return posted == positions->end() ? suspect : std::min(*posted, suspect);
}

std::size_t PostingIndex::NextSuspect(std::size_t from) const {
  const auto found = suspects_.lower_bound(from);
  return found == suspects_.end() ? kNone : *found;
}

}  // namespace ZAFHartLib
