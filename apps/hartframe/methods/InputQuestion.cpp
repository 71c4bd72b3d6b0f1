#include "hartframe/methods/InputQuestion.h"

#include "hartframe/methods/MethodTexts.h"
#include "hartframe/values/ValueText.h"
#include "hartframe/values/VariableRow.h"
#include "text/LangText.h"
#include "types/Failure.h"
#include "types/TextKey.h"

namespace hartframe {

namespace {

using ZAFHartTypes::TypeCode;
using ZAFHartTypes::Variable;
using ZAFHartTypes::Variant;

// The position of the option in the list of one language, from 0.
std::optional<std::int32_t> PositionOf(std::string_view option, std::string_view list) {
  for (std::int32_t position = 0;; ++position) {
    const auto end = list.find(';');
    if (ZAFHartTypes::SameKey(list.substr(0, end), option)) return position;
    if (end == std::string_view::npos) return std::nullopt;
    list.remove_prefix(end + 1);
  }
}

std::optional<std::int32_t> OptionOf(std::string_view answer, std::string_view options) {
  std::string_view rest = options;
  ZAFHartLib::LanguageSegment segment;
  while (ZAFHartLib::NextLanguageSegment(rest, segment)) {
    if (const auto position = PositionOf(answer, segment.text)) return position;
  }
  return std::nullopt;
}

std::string ChoiceLines(const Variable& variable, const Speech& speech) {
  std::string lines;
  for (const auto& item : variable.TypeInfo().EnumItems()) {
    lines += (lines.empty() ? "  " : "\n  ") + std::to_string(item.Value()) + "  " +
             speech.Pick(item.Description());
  }
  return lines;
}

// What the variable has already, to be taken over with Enter; "" when there is nothing to take.
std::string PresentValue(const Variable& variable, const Speech& speech) {
  const Variant& value = variable.Value();
  if (!variable.CheckValue(value, true)) return {};
  return WithUnit(variable, QuestionText(variable, value, speech), speech);
}

}  // namespace

bool TakeAnswer(Variable& variable, std::string_view answer, std::string_view options) {
  Variant value;
  const bool read = ZAFHartTypes::IgnoreFailures([&] {
    const auto option = options.empty() ? std::nullopt : OptionOf(answer, options);
    value = option ? Variant(*option) : ParseValue(answer, variable);
  });
  if (!read || !variable.CheckValue(value, true)) return false;
  variable.SetValue(value);
  return true;
}

bool AskForValue(Variable& variable, Console& console, const Speech& speech,
                 const Console::BreakCheck& isBroken, std::string_view options) {
  const bool isSelection = !options.empty();
  if (console.CanAsk())
    console.Error(isSelection ? ChoiceLines(variable, speech) : AllowedText(variable, speech));
  const std::string present = isSelection ? std::string() : PresentValue(variable, speech);
  std::string question = isSelection ? speech(texts::kEnterChoice) : speech(Text::EnterValue);
  if (!present.empty()) question += '[' + present + "] ";
  while (const auto answer = console.Ask(question, isBroken)) {
    if (answer->empty() && !present.empty()) return true;
    if (TakeAnswer(variable, *answer, options)) return true;
    console.Error(AllowedText(variable, speech));
  }
  return false;
}

}  // namespace hartframe
