#include "hartframe/values/VariableRow.h"

#include "text/DisplayString.h"
#include "types/Failure.h"

namespace hartframe {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::Variable;
using ZAFHartTypes::Variant;

VariableRow MakeRow(const std::shared_ptr<Variable>& variable, const Speech& speech) {
  const bool failed = variable->ErrorIndex() != 0;
  const std::string& unit =
      variable->UnitText().empty() ? variable->FixedUnitText() : variable->UnitText();
  return {variable,
          variable->Definition().Name(),
          speech.Pick(variable->Label()),
          DisplayValue(*variable, variable->Value(), speech),
          speech.Pick(unit),
          failed ? speech.Pick(variable->ErrorText()) : std::string()};
}

std::string DisplayValue(const Variable& variable, const Variant& value, const Speech& speech) {
  std::string text;
  const bool shown = ZAFHartTypes::IgnoreFailures([&] {
    if (!value.IsEmpty()) text = ZAFHartLib::GetValueDisplayString(value, variable.TypeInfo());
  });
  // A date that is none, say, is shown as the number it is.
  return speech.Pick(shown ? text : value.Describe());
}

std::string WithUnit(const Variable& variable, const std::string& text, const Speech& speech) {
  const std::string unit =
      speech.Pick(variable.UnitText().empty() ? variable.FixedUnitText() : variable.UnitText());
  return unit.empty() ? text : text + ' ' + unit;
}

std::string DisplayWithUnit(const Variable& variable, const Variant& value, const Speech& speech) {
  return WithUnit(variable, DisplayValue(variable, value, speech), speech);
}

std::string ValueWithUnit(const VariableRow& row) {
  return row.unit.empty() || row.value.empty() ? row.value : row.value + ' ' + row.unit;
}

std::string StateText(const VariableRow& row, const Speech& speech) {
  const Variable& variable = *row.variable;
  const bool deviceHolds = !variable.Attributes().IsLibraryHeld();
  std::string text;
  const auto add = [&text](const std::string& part) { text += (text.empty() ? "" : ", ") + part; };
  if (!variable.Validity()) add(speech(Text::StateNotValid));
  if (!row.error.empty()) add(row.error);
  if (variable.ToBeWritten()) add(speech(Text::StateToBeWritten));
  if (deviceHolds && variable.Validity() && !variable.Available()) add(speech(Text::StateNotRead));
  if (!deviceHolds) add(speech(Text::StateInternal));
  if (variable.Attributes().IsDynamic()) add(speech(Text::StateLive));
  if (!variable.CheckHandling(AccessMode::Write)) add(speech(Text::StateReadOnly));
  return text;
}

namespace {

// Recorded by the wrapper: this plus the response code, or plus the communication-error byte,
// whose bit 7 is set. The kernel records the base alone for an error that the DD defines, 128 for
// no reply, the communication-error byte or 1 for a disturbed one, and other response codes as
// they are.
constexpr std::int32_t kErrorBase = 0x100000;

std::int32_t StatusOf(const Variable& variable) {
  const std::int32_t index = variable.ErrorIndex();
  return index >= kErrorBase ? index - kErrorBase : index;
}

}  // namespace

std::int32_t ResponseCodeOf(const Variable& variable) {
  return TroubleOf(variable) == Trouble::Refused ? StatusOf(variable) : 0;
}

Trouble TroubleOf(const Variable& variable) {
  constexpr std::int32_t kNoReadCommand = -1;
  const std::int32_t index = variable.ErrorIndex();
  if (index == 0) return Trouble::None;
  if (index == kNoReadCommand) return Trouble::Other;
  const std::int32_t status = StatusOf(variable);
  return (status & 0x80) != 0 || index == 1 ? Trouble::Communication : Trouble::Refused;
}

}  // namespace hartframe
