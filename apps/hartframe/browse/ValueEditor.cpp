#include "hartframe/browse/ValueEditor.h"

#include "ddobjects/ItemArray.h"
#include "hartframe/browse/BrowseTexts.h"
#include "hartframe/browse/Dialogs.h"
#include "hartframe/values/ValueText.h"
#include "hartframe/values/VariableRow.h"
#include "types/Failure.h"

namespace hartframe::browse {

namespace {

using ZAFHartTypes::TypeCode;
using ZAFHartTypes::Variable;
using ZAFHartTypes::Variant;

// Codes with their texts.
struct Choices {
  std::vector<std::int32_t> codes;
  std::vector<std::string> texts;

  void Add(std::int32_t code, std::string text) {
    codes.push_back(code);
    texts.push_back(text.empty() ? std::to_string(code) : std::move(text));
  }
};

Choices ChoicesOf(const Variable& variable, const Speech& speech) {
  const auto& type = variable.TypeInfo();
  Choices choices;
  if (type.TypeCode() == TypeCode::Enumerated) {
    for (const auto& item : type.EnumItems())
      choices.Add(item.Value(), speech.Pick(item.Description()));
  } else if (type.TypeCode() == TypeCode::BitEnumerated) {
    for (const auto& item : type.BitItems())
      choices.Add(item.Value(), speech.Pick(item.Description()));
  } else if (type.TypeCode() == TypeCode::Index && type.IndexedArray()) {
    for (const auto& element : type.IndexedArray()->Elements())
      choices.Add(element.index, speech.Pick(element.description.Text()));
  }
  return choices;
}

std::optional<std::uint32_t> BitsOf(const Variable& variable) {
  std::optional<std::uint32_t> bits;
  ZAFHartTypes::IgnoreFailures([&] { bits = variable.Value().ToBits32(); });
  return bits;
}

std::optional<EditedValue> Choose(Screen& screen, const Speech& speech, const Variable& variable,
                                  const Choices& choices, DialogHead head) {
  const auto current = BitsOf(variable);
  std::size_t selected = choices.codes.size();
  for (std::size_t i = 0; i < choices.codes.size(); ++i) {
    if (current && static_cast<std::uint32_t>(choices.codes[i]) == *current) selected = i;
  }
  const bool known = selected < choices.codes.size();
  ChoiceDialog dialog(speech, std::move(head), choices.texts, known ? selected : 0);
  if (!screen.Run(dialog)) return std::nullopt;
  return EditedValue{Variant(choices.codes[dialog.Selected()]),
                     !known || dialog.Selected() != selected};
}

// Bits that have no text stay as they are.
std::optional<EditedValue> Check(Screen& screen, const Speech& speech, const Variable& variable,
                                 const Choices& choices, DialogHead head) {
  const std::uint32_t before = BitsOf(variable).value_or(0);
  std::vector<bool> checked;
  for (const std::int32_t mask : choices.codes)
    checked.push_back((before & static_cast<std::uint32_t>(mask)) != 0);
  ChecksDialog dialog(speech, std::move(head), choices.texts, checked);
  if (!screen.Run(dialog)) return std::nullopt;
  std::uint32_t bits = before;
  for (std::size_t i = 0; i < choices.codes.size(); ++i) {
    const auto mask = static_cast<std::uint32_t>(choices.codes[i]);
    if (dialog.Checked()[i] != checked[i]) bits ^= (bits ^ (checked[i] ? 0U : mask)) & mask;
  }
  return EditedValue{Variant(static_cast<std::int32_t>(bits)), bits != before};
}

// As it is shown when that can be read back, otherwise as it is kept in files.
std::string TypedText(const Variable& variable, const Speech& speech) {
  if (variable.Value().IsEmpty() || variable.TypeInfo().TypeCode() == TypeCode::Password) return {};
  const std::string shown = DisplayValue(variable, variable.Value(), speech);
  if (AcceptedValue(shown, variable)) return shown;
  std::string stored;
  ZAFHartTypes::IgnoreFailures([&] { stored = StoredText(variable.Value(), variable); });
  return stored;
}

std::optional<EditedValue> Type(Screen& screen, const Speech& speech, const Variable& variable,
                                DialogHead head) {
  const std::string before = TypedText(variable, speech);
  const bool hidden = variable.TypeInfo().TypeCode() == TypeCode::Password;
  const bool unchangedWillDo = !variable.Value().IsEmpty();
  const auto isUnchanged = [&](const std::string& text) {
    return unchangedWillDo && text == before;
  };
  FieldDialog dialog(speech, std::move(head), before, hidden, [&](const std::string& text) {
    if (isUnchanged(text) || AcceptedValue(text, variable)) return std::string();
    return speech(texts::kNotAccepted, {AllowedText(variable, speech)});
  });
  if (!screen.Run(dialog)) return std::nullopt;
  if (isUnchanged(dialog.Text())) return EditedValue{variable.Value(), false};
  return EditedValue{AcceptedValue(dialog.Text(), variable).value_or(Variant()), true};
}

}  // namespace

std::optional<EditedValue> EditValue(Screen& screen, const Speech& speech, const Variable& variable,
                                     DialogHead head) {
  const Choices choices = ChoicesOf(variable, speech);
  if (variable.TypeInfo().TypeCode() == TypeCode::BitEnumerated && !choices.codes.empty())
    return Check(screen, speech, variable, choices, std::move(head));
  if (!choices.codes.empty()) return Choose(screen, speech, variable, choices, std::move(head));
  const std::string& unit =
      variable.UnitText().empty() ? variable.FixedUnitText() : variable.UnitText();
  std::string allowed = AllowedText(variable, speech);
  if (!unit.empty()) allowed = speech(texts::kUnit, {speech.Pick(unit)}) + "\n" + allowed;
  head.text += (head.text.empty() ? "" : "\n") + allowed;
  return Type(screen, speech, variable, std::move(head));
}

}  // namespace hartframe::browse
