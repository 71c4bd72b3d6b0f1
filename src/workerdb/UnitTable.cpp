#include "workerdb/UnitTable.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::FoldCase;
using ZAFHartTypes::TextKey;

TextKey UnitKey(std::int32_t code) {
  return TextKey::Of("UNITID_" + std::to_string(code));
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Cuts the part before the first "|" off the text, and the "|".
std::string_view TakePart(std::string_view& text) {
  const std::size_t end = text.find('|');
  const std::string_view part = text.substr(0, end);
  text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
  return part;
}

}  // namespace

void UnitTable::Add(const CHartUnit& unit) {
  RegisterNames(Trimmed(unit.Name()), unit.Code());
  try {
    unitsById_.Add(UnitKey(unit.Code()), unit);
  } catch (const ZAFHartTypes::Failure& failure) {
    throw ZAFHartTypes::Failure(failure.Number(), "CDDStdWorkerDB.AddUnit",
                                failure.Description() + ": there is a unit of code " +
                                    std::to_string(unit.Code()) + " already; \"" + unit.Name() +
                                    "\" needs another.");
  }
}

// Default text, then pairs of a language code and a text. A name that starts with "|" has no
// default text; a code at the end without a text says nothing.
void UnitTable::RegisterNames(std::string_view name, std::int32_t code) {
  RegisterName(TakePart(name), code);
  while (!name.empty()) {
    TakePart(name);
    RegisterName(TakePart(name), code);
  }
}

void UnitTable::RegisterName(std::string_view text, std::int32_t code) {
  if (!text.empty()) unitNames_.try_emplace(FoldCase(text), code);
}

const CHartUnit* UnitTable::Find(std::string_view text) const {
  const auto found = unitNames_.find(FoldCase(text));
  return found == unitNames_.end() ? nullptr : unitsById_.Find(UnitKey(found->second));
}

double UnitTable::Convert(double value, std::string_view oldUnit, std::string_view newUnit) const {
  const CHartUnit* from = Find(oldUnit);
  const CHartUnit* to = Find(newUnit);
  if (!from || !to || from->Factor() == 0) return value;
  return ((value / from->Factor()) - from->Offset() + to->Offset()) * to->Factor();
}

}  // namespace ZAFHartLib
