#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "ddobjects/DataItem.h"
#include "platform/Random.h"
#include "types/Variant.h"

namespace ZAFHartLib {

// The values that a link which echoes answers with, one per reply item: the present values of the
// items, the default of a variable that has none. Live values (flag 9) that are not to be written
// drift; items 1 and 2 that stand for variables repeat the status bytes of `lastReply`. Nothing is
// changed on the variables themselves, so that an exchange that fails leaves them as they are.
std::vector<ZAFHartTypes::Variant> TemplateValues(const ZAFHartTypes::DataItemList& reply,
                                                  std::span<const std::uint8_t> lastReply,
                                                  const std::string& language,
                                                  platform::RandomSource& random);

// The next value of a live variable: a random step towards 100, of one with a unit of "mA" towards
// 24. One that the variable refuses is replaced by its fallback value; a value that is no number
// stays.
ZAFHartTypes::Variant DriftedValue(const ZAFHartTypes::Variable& variable,
                                   const std::string& language, platform::RandomSource& random);

}  // namespace ZAFHartLib
