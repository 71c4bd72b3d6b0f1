#include "hartframe/browse/PairActions.h"

#include "ddobjects/Method.h"
#include "hartframe/browse/BrowseTexts.h"
#include "hartframe/browse/PairScreenTexts.h"
#include "hartframe/menus/MenuPath.h"
#include "interfaces/InternalNames.h"

namespace hartframe::browse {

using ZAFHartTypes::Definition;
using ZAFHartTypes::ObjectKind;

bool PairActions::MayLoseOnline(const char* title) {
  const std::size_t pending = PendingOnline();
  return pending == 0 ||
         Confirm(title, session_.Say()(texts::kLosesOnline, {std::to_string(pending)}),
                 texts::kGiveThemUp);
}

void PairActions::Upload() {
  const std::size_t pending = Pending();
  if (pending > 0 &&
      !Confirm(texts::kPairUpload,
               session_.Say()(texts::kUploadQuestion, {std::to_string(pending)}), texts::kLoad)) {
    return;
  }
  RunAndShow(texts::kPairUpload, [&] {
    const Loaded loaded = LoadOnline(pair_);
    if (TakeOverLoaded(pair_, loaded)) notAccepted_.clear();
  });
}

void PairActions::Download() {
  if (!MayLoseOnline(texts::kPairDownload)) return;
  std::optional<DownloadPlan> plan;
  std::string transcript;
  Record(
      [&] {
        RequireWriteAccess(session_);
        const Loaded loaded = LoadOnline(pair_);
        if (loaded.IsComplete())
          plan = PlanDownload(pair_, loaded);
        else
          session_.Tell().Problem("incomplete", session_.Say()(Text::IncompleteDataSet));
      },
      transcript);
  if (!plan) return ShowTranscript(texts::kPairDownload, transcript);
  if (plan->toWrite.empty()) return ShowTranscript(texts::kPairDownload, TextOf(*plan));
  if (!Confirm(texts::kPairDownload, TextOf(*plan), texts::kWriteThem)) return;
  RunAndShow(texts::kPairDownload, [&] { CarryOut(pair_, *plan); });
}

bool PairActions::Write() {
  RunAndShow(texts::kWrite, [&] {
    RequireWriteAccess(session_);
    WriteAndTell(pair_.Online(), {});
  });
  return PendingOnline() == 0;
}

bool PairActions::WriteAll() {
  if (PendingOnline() > 0 && !Write()) return false;
  if (DataSetActions::Pending() > 0) Download();
  return Pending() == 0;
}

void PairActions::RefreshOnline() {
  Session& online = pair_.Online();
  const auto refresh =
      Definition::Define(ZAFHartTypes::internal_names::kRefreshDataSet, ObjectKind::Method);
  const auto method = online.Kernel().GetMethod(refresh);
  if (!MayLoseOnline(MultilingualLabel(*method).c_str())) return;
  if (screen_.Work([&] { online.Kernel().ExecuteMethod(refresh, method); }))
    screen_.Tell(Tone::Plain, session_.Say()(texts::kRefreshed));
}

// --- what a download will do ---

std::string PairActions::TextOf(const DownloadPlan& plan) {
  const Speech& say = session_.Say();
  std::string text = plan.toWrite.empty()
                         ? say(Text::NothingToWrite)
                         : say(texts::kWillBeWrittenList, {std::to_string(plan.toWrite.size())});
  for (const ComparedRow& row : plan.toWrite) {
    const bool isValid = row.online.variable->Validity();
    AddLine(row, isValid ? std::string() : say(texts::kNotValidYet), text);
  }
  const std::size_t cannot = plan.cannot.size() + notAccepted_.size();
  if (cannot == 0) return text;
  text += "\n" + say(texts::kCannotBeWrittenList, {std::to_string(cannot)});
  for (const ComparedRow& row : plan.cannot) AddLine(row, ReasonOf(row), text);
  for (const Change& change : notAccepted_) {
    text += "\n  " + session_.Row(change.definition).label + ": " + OneLine(change.value) + " (" +
            say(texts::kNotAcceptedNow) + ")";
  }
  return text;
}

std::string PairActions::ReasonOf(const ComparedRow& row) {
  return row.match == Match::OnlyOnline ? session_.Say()(texts::kNoOfflineValue)
                                        : session_.Say()(Text::StateReadOnly);
}

// "Tag: TT-4711 -> NEW (reason)"
void PairActions::AddLine(const ComparedRow& row, const std::string& reason, std::string& text) {
  text += "\n  " + row.offline.label + ": " + ValueWithUnit(row.online) + " → " +
          ValueWithUnit(row.offline);
  if (!reason.empty()) text += " (" + reason + ")";
}

}  // namespace hartframe::browse
