#include "comm/ReplyTemplate.h"

#include <cmath>

#include "ddobjects/Variable.h"
#include "hart/StatusBytes.h"
#include "text/LangText.h"
#include "types/Failure.h"

namespace ZAFHartLib {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::DataItem;
using ZAFHartTypes::IgnoreFailures;
using ZAFHartTypes::TypeCode;
using ZAFHartTypes::Variable;
using ZAFHartTypes::Variant;

namespace {

// Part of the way to its goal that a live value goes in one exchange.
constexpr double kApproach = 0.2;

// `chance` lies in [0, 1).
double Drifted(double value, const std::string& unit, double chance) {
  const bool isPercent = unit.find('%') != std::string::npos;
  if (!isPercent && unit.find("mA") != std::string::npos) {
    return value + kApproach * ((20 - value) + 4) + (chance - 0.5) * 4;
  }
  return value + kApproach * (100 - value) + (chance - 0.5) * 10;
}

Variant AsTyped(double value, TypeCode type) {
  if (type == TypeCode::Float) return static_cast<float>(value);
  return IsIntegral(type) ? std::nearbyint(value) : value;
}

Variant PresentValue(const DataItem& item) {
  Variant value = item.Value();
  return value.IsEmpty() && item.Variable() ? item.Variable()->DefaultValue() : value;
}

// A status byte of the last reply; 0 when nothing follows it.
Variant StatusByte(std::span<const std::uint8_t> lastReply, std::size_t index) {
  return Variant(index + 1 < lastReply.size() ? lastReply[index] : std::uint8_t{0});
}

}  // namespace

Variant DriftedValue(const Variable& variable, const std::string& language,
                     platform::RandomSource& random) {
  const std::string& unit =
      variable.UnitText().empty() ? variable.FixedUnitText() : variable.UnitText();
  Variant value = variable.Value();
  IgnoreFailures([&] {
    const double next = Drifted(value.ToDouble(), LangText(unit, language), random.Uniform());
    value = AsTyped(next, variable.TypeInfo().TypeCode());
    if (!variable.CheckValue(value, true)) value = variable.FallbackValue();
  });
  return value;
}

std::vector<Variant> TemplateValues(const ZAFHartTypes::DataItemList& reply,
                                    std::span<const std::uint8_t> lastReply,
                                    const std::string& language, platform::RandomSource& random) {
  std::vector<Variant> values;
  values.reserve(reply.Count());
  for (const DataItem& item : reply) {
    const Variable* variable = item.Variable().get();
    if (item.IsVariable() && values.size() < hart::kStatusSize) {
      values.push_back(StatusByte(lastReply, values.size()));
    } else if (variable && variable->Attributes().IsDynamic() && !variable->ToBeWritten()) {
      values.push_back(DriftedValue(*variable, language, random));
    } else {
      values.push_back(PresentValue(item));
    }
  }
  return values;
}

}  // namespace ZAFHartLib
