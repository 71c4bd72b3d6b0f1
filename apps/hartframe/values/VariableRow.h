#pragma once

#include <memory>
#include <string>

#include "ddobjects/Variable.h"
#include "hartframe/Speech.h"

namespace hartframe {

// A variable as it is shown: texts in the user's language, values by the library's display rules.
struct VariableRow {
  std::shared_ptr<ZAFHartTypes::Variable> variable;
  std::string name;
  std::string label;
  std::string value;
  std::string unit;
  std::string error;  // "" without one
};

VariableRow MakeRow(const std::shared_ptr<ZAFHartTypes::Variable>& variable, const Speech& speech);

// The value as the variable would show it.
std::string DisplayValue(const ZAFHartTypes::Variable& variable, const ZAFHartTypes::Variant& value,
                         const Speech& speech);
// A text for the value, with the variable's unit behind it.
std::string WithUnit(const ZAFHartTypes::Variable& variable, const std::string& text,
                     const Speech& speech);
// The value as the variable would show it, with the unit.
std::string DisplayWithUnit(const ZAFHartTypes::Variable& variable,
                            const ZAFHartTypes::Variant& value, const Speech& speech);

// The row's value with its unit.
std::string ValueWithUnit(const VariableRow& row);

// What is worth knowing about the variable's state, "" when all is well.
std::string StateText(const VariableRow& row, const Speech& speech);

// How the last exchange for the variable ended.
enum class Trouble { None, Communication, Refused, Other };
Trouble TroubleOf(const ZAFHartTypes::Variable& variable);
// The response code that refused it; 0 when it was not refused, or the code is not known.
std::int32_t ResponseCodeOf(const ZAFHartTypes::Variable& variable);

}  // namespace hartframe
