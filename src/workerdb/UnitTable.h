#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "ddobjects/KeyedList.h"
#include "workerdb/CHartUnit.h"

namespace ZAFHartLib {

// Engineering units by code and by their texts in every language, letter case not regarded.
class UnitTable {
 public:
  // Registers the unit's texts, then the unit. A text that is taken keeps its first code. Raises
  // DuplicateKey for a code that is taken.
  void Add(const CHartUnit& unit);
  bool IsEmpty() const { return unitsById_.IsEmpty(); }

  // nullptr when no unit has that text.
  const CHartUnit* Find(std::string_view text) const;
  // The value in the unit `newUnit` of a value in `oldUnit`; unchanged when a text is unknown or
  // the old unit's factor is 0.
  double Convert(double value, std::string_view oldUnit, std::string_view newUnit) const;

 private:
  void RegisterNames(std::string_view name, std::int32_t code);
  void RegisterName(std::string_view text, std::int32_t code);

  ZAFHartTypes::KeyedList<CHartUnit> unitsById_;             // by "UNITID_<code>"
  std::unordered_map<std::string, std::int32_t> unitNames_;  // by folded text
};

}  // namespace ZAFHartLib
