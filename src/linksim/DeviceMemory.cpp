#include "linksim/DeviceMemory.h"

#include "linksim/ValueText.h"
#include "types/Failure.h"

namespace HartLinkSim {

using ZAFHartTypes::Failure;
using ZAFHartTypes::TextKey;
using ZAFHartTypes::TypeCode;

namespace {

// Equality of values leaves NaNs unequal; a NaN that is written again is no change.
bool IsSame(const DeviceMemory::Cell& cell, const DeviceMemory::Value& value, TypeCode type) {
  return cell.value == value || (cell.value.IsNotFinite() && value.IsNotFinite() &&
                                 ValueText(cell.value, type) == ValueText(value, type));
}

}  // namespace

DeviceMemory::Cell& DeviceMemory::CellOf(TextKey name) {
  if (!cells_.Contains(name)) cells_.Add(name, {});
  return *cells_.Find(name);
}

std::optional<DeviceMemory::Value> DeviceMemory::ValueOf(TextKey name, TypeCode type) {
  Cell* cell = cells_.Find(name);
  if (!cell) return std::nullopt;
  if (cell->type != type && cell->value.IsText()) {
    try {
      cell->value = ValueFromText(cell->value.ToText(), type);
    } catch (const Failure& failure) {
      const std::string where =
          cell->fileLine > 0 ? ", line " + std::to_string(cell->fileLine) + " of its file" : "";
      throw Failure(failure.Number(), "HartLinkSim.DeviceMemory",
                    "The device's value of \"" + name.Name() + "\"" + where +
                        ", cannot be sent: " + failure.Description());
    }
  }
  cell->type = type;
  return cell->value;
}

bool DeviceMemory::Set(TextKey name, Value value, TypeCode type) {
  const bool isNew = !cells_.Contains(name);
  Cell& cell = CellOf(name);
  const bool changes = isNew || !IsSame(cell, value, type);
  cell.value = std::move(value);
  cell.type = type;
  cell.isChanged = cell.isChanged || changes;
  return changes;
}

void DeviceMemory::SetFromFile(TextKey name, std::string text, std::size_t line) {
  CellOf(name) = Cell{std::move(text), TypeCode::NotComputed, line, false};
}

}  // namespace HartLinkSim
