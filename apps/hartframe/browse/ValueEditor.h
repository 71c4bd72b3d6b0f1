#pragma once

#include <optional>

#include "ddobjects/Variable.h"
#include "hartframe/browse/Dialog.h"
#include "hartframe/browse/Screen.h"

namespace hartframe::browse {

struct EditedValue {
  ZAFHartTypes::Variant value;
  bool isChanged = false;
};

// Asks for a value of the variable's type: enumerations and array elements from a list, bits from a
// check list, everything else as text with its unit and limits. A value that the variable does not
// accept is refused with the reason and stays to be mended. Nothing when the user gives up.
std::optional<EditedValue> EditValue(Screen& screen, const Speech& speech,
                                     const ZAFHartTypes::Variable& variable, DialogHead head);

}  // namespace hartframe::browse
