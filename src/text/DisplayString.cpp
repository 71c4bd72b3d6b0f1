#include "text/DisplayString.h"

#include <cmath>

#include "ddobjects/ItemArray.h"
#include "platform/Platform.h"
#include "text/NumberMask.h"
#include "text/modDDPrintF.h"
#include "types/Failure.h"
#include "types/NumberText.h"
#include "types/Utf8.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::BitList;
using ZAFHartTypes::EnumList;
using ZAFHartTypes::ItemArray;
using ZAFHartTypes::TypeCode;
using ZAFHartTypes::TypeInfo;
using ZAFHartTypes::Variant;
using ZAFHartTypes::VariantType;

// Value x factor. A single stays one, so that its text shows no more than its seven digits.
Variant Scaled(const Variant& value, double number, const Variant& factor) {
  const double product = factor.IsEmpty() ? number : number * factor.ToDouble();
  if (value.Type() == VariantType::Single && factor.Type() != VariantType::Double) {
    return static_cast<float>(product);
  }
  return product;
}

std::string NumberDisplay(const Variant& value, const TypeInfo& typeInfo) {
  double number = value.ToDouble();
  if (!std::isfinite(number)) return std::string(NotFiniteText(number));
  if (typeInfo.TypeCode() == TypeCode::Unsigned) number = ToUnsigned32(number);
  const Variant scaled = Scaled(value, number, typeInfo.ScalingFactor());
  const std::string mask = CFormatToVBFormat(typeInfo.DisplayFormat());
  return mask.empty() ? scaled.ToText() : FormatMask(scaled.ToDouble(), mask);
}

std::string EnumDisplay(const Variant& value, const EnumList& items) {
  for (const auto& item : items) {
    if (value == Variant(item.Value())) return item.Description();
  }
  return value.ToText();
}

std::string BitDisplay(const Variant& value, const BitList& items) {
  const std::uint32_t bits = value.ToBits32();
  std::string text;
  text.reserve(items.Count());
  for (const auto& item : items) {
    const auto mask = static_cast<std::uint32_t>(item.Value());
    text += (bits & mask) == mask ? '1' : '0';
  }
  return text;
}

std::string IndexDisplay(const Variant& value, const ItemArray* array) {
  if (array != nullptr) {
    for (const auto& element : array->Elements()) {
      if (value == Variant(element.index)) return element.description;
    }
  }
  return value.ToText();
}

std::string DateDisplay(const Variant& value) {
  const std::uint32_t bytes = value.ToBits32();
  const int day = static_cast<int>(bytes >> 16U & 0xFFU);
  const int month = static_cast<int>(bytes >> 8U & 0xFFU);
  const int year = static_cast<int>(bytes & 0xFFU) + 1900;
  if (!ZAFHartTypes::DateSerial(year, month, day)) {
    throw ZAFHartTypes::Failure(ZAFHartTypes::ErrorNumber::TypeMismatch, "GetValueDisplayString",
                                "No date: day " + std::to_string(day) + ", month " +
                                    std::to_string(month) + ", year " + std::to_string(year));
  }
  return platform::Current().Locale().FormatShortDate(day, month, year);
}

}  // namespace

double ToUnsigned32(double value) {
  return value < 0 ? value + 4294967296.0 : value;
}

std::string GetValueDisplayString(const Variant& value, const TypeInfo& typeInfo) {
  switch (typeInfo.TypeCode()) {
    case TypeCode::Float:
    case TypeCode::Double:
    case TypeCode::Integer:
    case TypeCode::Unsigned:
      return NumberDisplay(value, typeInfo);
    case TypeCode::Enumerated:
      return EnumDisplay(value, typeInfo.EnumItems());
    case TypeCode::BitEnumerated:
      return BitDisplay(value, typeInfo.BitItems());
    case TypeCode::Index:
      return IndexDisplay(value, typeInfo.IndexedArray().get());
    case TypeCode::Ascii:
    case TypeCode::PackedAscii:
    case TypeCode::BitString:
      return value.ToText();
    case TypeCode::Password:
      return std::string(ZAFHartTypes::utf8::Length(value.ToText()), '*');
    case TypeCode::Date:
    case TypeCode::Time:
    case TypeCode::DateAndTime:
    case TypeCode::Duration:
      return DateDisplay(value);
    case TypeCode::NotComputed:
      return {};
  }
  return {};
}

std::string GetVariableDisplayString(const ZAFHartTypes::Variable& variable) {
  return GetValueDisplayString(variable.Value(), variable.TypeInfo());
}

}  // namespace ZAFHartLib
