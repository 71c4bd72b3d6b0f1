#include <algorithm>
#include <cmath>
#include <string>

#include "ddobjects/ItemArray.h"
#include "hartframe/methods/MethodTexts.h"
#include "hartframe/values/ValueText.h"
#include "hartframe/values/VariableRow.h"
#include "platform/Platform.h"
#include "types/Utf8.h"

namespace hartframe {

namespace {

using ZAFHartTypes::TypeCode;
using ZAFHartTypes::TypeInfo;
using ZAFHartTypes::Variable;
using ZAFHartTypes::Variant;

std::string RangeSentence(const Variable& variable, const Variant& minimum, const Variant& maximum,
                          const Speech& speech) {
  return speech(Text::AllowedRange,
                {QuestionText(variable, minimum, speech),
                 WithUnit(variable, QuestionText(variable, maximum, speech), speech)});
}

std::string RangeText(const Variable& variable, std::int32_t range, const Speech& speech) {
  const Variant& minimum = variable.TypeInfo().MinValue(range);
  const Variant& maximum = variable.TypeInfo().MaxValue(range);
  const auto show = [&](const Variant& limit) {
    return WithUnit(variable, QuestionText(variable, limit, speech), speech);
  };
  if (minimum.IsEmpty() && maximum.IsEmpty()) return {};
  if (maximum.IsEmpty()) return speech(Text::AllowedFrom, {show(minimum)});
  if (minimum.IsEmpty()) return speech(Text::AllowedTo, {show(maximum)});
  return RangeSentence(variable, minimum, maximum, speech);
}

// What its bytes can hold.
std::string IntegerText(const Variable& variable, const Speech& speech) {
  constexpr std::int32_t kMostBytes = 4;
  const TypeInfo& type = variable.TypeInfo();
  const double count = std::exp2(8 * std::clamp(type.Size(), 1, kMostBytes));
  const double least = type.TypeCode() == TypeCode::Integer ? -count / 2 : 0;
  return RangeSentence(variable, Variant(least), Variant(least + count - 1), speech);
}

std::string NumberText(const Variable& variable, const Speech& speech) {
  const TypeInfo& type = variable.TypeInfo();
  std::string text;
  for (std::int32_t range = 1; range <= type.RangeCount(); ++range) {
    const std::string limits = RangeText(variable, range, speech);
    if (!limits.empty()) text += (text.empty() ? "" : " ") + limits;
  }
  if (!text.empty()) return text;
  return IsIntegral(type.TypeCode()) ? IntegerText(variable, speech) : speech(Text::AllowedNumber);
}

class Choices {
 public:
  explicit Choices(const Speech& speech) : speech_(speech) {}
  void Add(std::int32_t code, const std::string& description) {
    if (!list_.empty()) list_ += ", ";
    list_ += std::to_string(code) + " \"" + speech_.Pick(description) + '"';
  }
  std::string Sentence(const Variable& variable) const {
    return list_.empty() ? NumberText(variable, speech_) : speech_(Text::AllowedOneOf, {list_});
  }

 private:
  const Speech& speech_;
  std::string list_;
};

}  // namespace

std::string RefusalSentence(std::string_view text, const Variable& variable, const Speech& speech) {
  const std::string why =
      ZAFHartTypes::utf8::IsValid(text) ? AllowedText(variable, speech) : speech(Text::BrokenText);
  return speech(Text::ValueRefused, {variable.Definition().Name(), OneLine(text), why});
}

std::string AllowedText(const Variable& variable, const Speech& speech) {
  const TypeInfo& type = variable.TypeInfo();
  Choices choices(speech);
  switch (type.TypeCode()) {
    case TypeCode::Enumerated:
      for (const auto& item : type.EnumItems()) choices.Add(item.Value(), item.Description());
      return choices.Sentence(variable);
    case TypeCode::BitEnumerated:
      for (const auto& item : type.BitItems()) choices.Add(item.Value(), item.Description());
      return choices.Sentence(variable);
    case TypeCode::Index:
      if (type.IndexedArray()) {
        for (const auto& element : type.IndexedArray()->Elements())
          choices.Add(element.index, element.description);
      }
      return choices.Sentence(variable);
    case TypeCode::PackedAscii:
      return speech(Text::AllowedCapitals, {std::to_string(type.Size())});
    case TypeCode::Ascii:
    case TypeCode::Password:
    case TypeCode::BitString:
      if (type.Size() <= 0) return speech(texts::kAllowedAnyText);
      return speech(Text::AllowedLength, {std::to_string(type.Size())});
    case TypeCode::Date:
    case TypeCode::Time:
    case TypeCode::DateAndTime:
    case TypeCode::Duration:
      return speech(Text::AllowedDate,
                    {platform::Current().Locale().FormatShortDate(31, 12, 2026)});
    default:
      return NumberText(variable, speech);
  }
}

}  // namespace hartframe
