#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "ddobjects/DefinitionList.h"
#include "ddobjects/KeyedList.h"

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
    if (std::size_t* times = timesWatched_.Find(variable)) {
      ++*times;
    } else {
      timesWatched_.Add(variable, 1);
    }
    if (marked) ++count_;
  }
  void MarkChanged(ZAFHartTypes::TextKey variable, bool marked) {
    const std::size_t* times = timesWatched_.Find(variable);
    if (times) count_ = marked ? count_ + *times : count_ - *times;
  }

 private:
  VariableMark mark_;
  std::size_t count_ = 0;
  std::size_t watched_ = 0;
  ZAFHartTypes::KeyedList<std::size_t> timesWatched_;
};

// The variables that bore a mark when they were looked for, in database order, and the running
// count of them.
struct MarkedVariables {
  ZAFHartTypes::DefinitionList variables;
  std::shared_ptr<StateCounter> count;
};

}  // namespace ZAFHartLib
