#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>

#include "types/TextKey.h"

namespace ZAFHartLib {

// Marks of a variable that can be counted.
enum class VariableMark : std::uint8_t { Available, ToBeWritten };

// How many of the watched variables bear a mark, kept up to date by the worker database that made
// the counter, for as long as somebody holds it. A variable watched twice counts twice.
class StateCounter {
 public:
  explicit StateCounter(VariableMark mark) : mark_(mark) {}

  VariableMark Mark() const { return mark_; }
  // Watched variables that bear the mark now.
  std::size_t Count() const { return count_; }
  // Variables watched; those that the database does not hold count as not marked.
  std::size_t Watched() const { return watched_; }

  // --- for the worker database ---
  void Watch(ZAFHartTypes::TextKey variable, bool marked) {
    ++watched_;
    ++timesWatched_[variable];
    if (marked) ++count_;
  }
  void MarkChanged(ZAFHartTypes::TextKey variable, bool marked) {
    const auto found = timesWatched_.find(variable);
    if (found == timesWatched_.end()) return;
    count_ = marked ? count_ + found->second : count_ - found->second;
  }

 private:
  VariableMark mark_;
  std::size_t count_ = 0;
  std::size_t watched_ = 0;
  std::unordered_map<ZAFHartTypes::TextKey, std::size_t, ZAFHartTypes::TextKeyHash> timesWatched_;
};

}  // namespace ZAFHartLib
