#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "ddobjects/Codes.h"
#include "fdtobjects/InternalEnumerations.h"
#include "interfaces/IDDKernel.h"
#include "types/Variant.h"

namespace ZAFHartLib {

// A default value as the table holds it: a type and a number, or the empty text.
struct DefaultRow {
  ZAFHartTypes::VariantType type = ZAFHartTypes::VariantType::Empty;
  double number = 0;

  ZAFHartTypes::Variant Value() const;
};

struct LimitsRow {
  std::int32_t minimum;
  std::int32_t maximum;
};

// One internal variable.
struct InternalVariableRow {
  std::string_view name;
  CatalogueText label;
  CatalogueText help = {};
  ZAFHartTypes::TypeCode type = ZAFHartTypes::TypeCode::NotComputed;
  std::int32_t size = 0;  // bytes; characters of a text
  std::int32_t maxEnum = 0;
  const EnumRows* items = nullptr;
  std::optional<LimitsRow> limits = {};
  DefaultRow defaultValue = {};
  bool availableFromDefault = false;
  bool (*validity)(ZAFHartTypes::IDDKernel&) = nullptr;
};

// In catalogue order.
std::span<const InternalVariableRow> InternalVariableRows();

}  // namespace ZAFHartLib
