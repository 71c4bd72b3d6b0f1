#include "kernel/EditedValue.h"

#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"
#include "text/DisplayString.h"
#include "text/LangText.h"
#include "types/Failure.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

std::string LimitText(const Variant& limit, const TypeInfo& type) {
  std::string text;
  if (!limit.IsEmpty()) IgnoreFailures([&] { text = GetValueDisplayString(limit, type); });
  return text;
}

std::string RangesText(const TypeInfo& type) {
  std::string text;
  for (std::int32_t i = 1; i <= type.RangeCount(); ++i) {
    const std::string minimum = LimitText(type.MinValue(i), type);
    const std::string maximum = LimitText(type.MaxValue(i), type);
    if (minimum.empty() && maximum.empty()) continue;
    if (!text.empty()) text += "; ";
    if (!minimum.empty()) text += minimum + " ";
    text += "...";
    if (!maximum.empty()) text += " " + maximum;
  }
  return text;
}

}  // namespace

std::string RefusalText(const Variable& variable, std::string_view language) {
  std::string text = LangText(ResText(idErrNotWritable), language);
  const std::string ranges = RangesText(variable.TypeInfo());
  if (!ranges.empty()) text.append(" (").append(ranges).append(")");
  return text;
}

}  // namespace ZAFHartLib
