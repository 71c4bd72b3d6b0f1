#include "hartframe/browse/Editing.h"

#include "hartframe/browse/BrowseTexts.h"
#include "hartframe/browse/ValueEditor.h"
#include "hartframe/changes/WriteWatch.h"
#include "hartframe/dataset/PairTransfers.h"
#include "hartframe/values/Reading.h"

namespace hartframe::browse {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::Definition;
using ZAFHartTypes::ItemIndex;
using ZAFHartTypes::Variable;
using ZAFHartTypes::Variant;

bool WritesAtOnce(Session& session) {
  return dynamic_cast<ZAFHartTypes::IDataBaseExtension&>(session.Database()).SynchronousMode();
}

std::string WhyNotEditable(const Row& row, const std::string& why, const Speech& speech) {
  const Variable& variable = *row.view.variable->variable;
  if (!variable.Validity()) return speech(Text::NotValidNow, {row.view.label});
  if (!variable.CheckHandling(AccessMode::Write) || (row.item.readOnly && why.empty()))
    return speech(Text::NotWritable, {row.view.label});
  return why.empty() ? std::string() : row.view.label + ": " + why;
}

void Editing::Edit(Page& page, const Row& row) {
  Field field = session_.Variable(row.item.definition);
  if (!Enter(page, field)) return;
  const std::string help = session_.Say().Pick(field->Help());
  const auto edited =
      EditValue(screen_, session_.Say(), *field, {DialogStyle::Input, row.view.label, {}, help});
  edited_ = row.item.definition;
  value_ = edited && edited->isChanged ? edited->value : Variant::Null();
  refusal_.clear();
  Leave(page, field);
  edited_ = {};
  if (edited && edited->isChanged) TellOutcome(row);
}

// Limits and unit are to be the device's; offline there is none to ask.
bool Editing::Enter(Page& page, Field& field) {
  return screen_.Work([&] {
    if (!session_.IsOffline()) ThoroughReader(session_).Read(field->Definition());
    page.Enter(field);
  });
}

void Editing::Leave(Page& page, Field& field) {
  screen_.Work([&] {
    if (session_.IsOffline())
      KeepConverted(session_, field->Definition(), [&] { page.Leave(field); });
    else if (WritesAtOnce(session_) && !value_.IsNull())
      LeaveAndWrite(page, field);
    else
      page.Leave(field);
  });
}

// What no device answers to stays to be written.
void Editing::LeaveAndWrite(Page& page, Field& field) {
  const Definition definition = field->Definition();
  WriteWatch watch(session_, PendingVariables(session_));
  watch.Expect(definition, value_);
  const bool finished = session_.Run([&] { page.Leave(field); });
  if (refusal_.empty()) watch.RestoreUnanswered(watch.Results());
  if (!finished) session_.Database().SetVariableToBeWritten(definition, true);
}

void Editing::TellOutcome(const Row& row) {
  const auto variable = session_.Variable(row.item.definition);
  const std::string value = DisplayWithUnit(*variable, variable->Value(), session_.Say());
  if (!refusal_.empty()) {
    screen_.Tell(Tone::Bad, session_.Say()(texts::kRefused, {row.view.label, refusal_, value}));
  } else if (variable->ToBeWritten()) {
    screen_.Tell(Tone::Pending, session_.Say()(texts::kWillBeWritten, {row.view.label, value}));
  } else if (WritesAtOnce(session_) && TroubleOf(*variable) == Trouble::None) {
    screen_.Tell(Tone::Good, session_.Say()(texts::kWrittenAtOnce, {row.view.label, value}));
  }
}

Variant Editing::EditedValue(const Definition& variable) const {
  return edited_ && edited_.IsSameAs(variable) ? value_ : Variant::Null();
}

void Editing::OnShown(const ZAFHartTypes::DDObject& object) {
  if (!edited_ || !edited_.IsSameAs(object.ObjectDefinition())) return;
  const auto* variable = dynamic_cast<const Variable*>(&object);
  if (variable && variable->ErrorIndex() == static_cast<std::int32_t>(ItemIndex::NotWritable))
    refusal_ = session_.Say().Pick(variable->ErrorText());
}

}  // namespace hartframe::browse
