#include <algorithm>

#include "ddobjects/Menu.h"
#include "hartframe/changes/Changes.h"
#include "hartframe/changes/Transfers.h"
#include "hartframe/changes/WriteWatch.h"
#include "hartframe/commands/Commands.h"
#include "hartframe/dataset/DataSet.h"
#include "hartframe/dataset/DataSetTexts.h"
#include "hartframe/dataset/KeptDataSet.h"

namespace hartframe {

namespace {

using ZAFHartTypes::Definition;

std::vector<Definition> WritableOf(const Loaded& loaded) {
  std::vector<Definition> writable;
  for (const VariableRow& row : loaded.rows) {
    if (row.variable->CheckHandling(ZAFHartTypes::AccessMode::Write))
      writable.push_back(row.variable->Definition());
  }
  return writable;
}

bool IsChange(const WriteResult& result, const std::vector<Change>& changes) {
  return std::any_of(changes.begin(), changes.end(), [&](const Change& change) {
    return change.definition.IsSameAs(result.row.variable->Definition());
  });
}

// What only the download has marked is no change of anybody's; what of it the configuration does
// not have would be refused by every later write.
void UnmarkInvalid(Session& session, const std::vector<Definition>& changed) {
  for (const Definition& definition : PendingVariables(session)) {
    const bool isChange = std::any_of(changed.begin(), changed.end(), [&](const Definition& other) {
      return other.IsSameAs(definition);
    });
    if (!isChange && !session.Variable(definition)->Validity())
      session.Database().SetVariableToBeWritten(definition, false);
  }
}

// A whole data set is too long to tell: what was changed, and what did not go as it was meant.
void TellDownload(Session& session, std::vector<WriteResult> results,
                  const std::vector<Change>& changes) {
  const std::size_t total = results.size();
  const auto written = std::count_if(results.begin(), results.end(), [](const WriteResult& result) {
    return result.outcome == Outcome::Written || result.outcome == Outcome::Adjusted;
  });
  std::erase_if(results, [&](const WriteResult& result) {
    return result.outcome == Outcome::Written && !IsChange(result, changes);
  });
  session.Tell().WriteResults(results);
  session.Tell().Note(
      "written", session.Say()(Text::Written, {std::to_string(written), std::to_string(total)}));
}

// The data set on disk, or what the device has. Tells why it is not complete.
Loaded DataSetToWrite(Session& session) {
  const Speech& say = session.Say();
  if (session.Kept() && !session.Kept()->IsNew()) {
    Loaded held = HeldDataSet(session);
    if (!held.IsComplete()) {
      session.Tell().Problem("incomplete",
                             say(texts::kIncompleteFile, {std::to_string(held.notAttempted)}));
    }
    return held;
  }
  Loaded loaded = LoadDataSet(session);
  TellLoaded(session, loaded);
  if (!loaded.IsComplete()) session.Tell().Problem("incomplete", say(Text::IncompleteDataSet));
  return loaded;
}

}  // namespace

ExitCode RunDownload(Session& session) {
  RequireWriteAccess(session);
  const std::vector<Change> changes = ParseChanges(session, session.Settings().changes);
  const std::vector<Change> pending = LoadPending(session, changes);
  const Loaded loaded = DataSetToWrite(session);
  if (!loaded.IsComplete()) return loaded.code;
  const std::vector<Change> notAccepted = ApplyPending(session, pending);
  ApplyChanges(session, changes);
  return DownloadAndTell(session, loaded, changes, notAccepted);
}

ExitCode DownloadAndTell(Session& session, const Loaded& loaded, const std::vector<Change>& changes,
                         const std::vector<Change>& notAccepted) {
  const std::vector<Definition> changed = PendingVariables(session);
  WriteWatch watch(session, WritableOf(loaded));
  Definition menu = UpDownloadMenu(session);
  const bool finished = session.Run([&] { session.Components().Download(menu); });
  const std::vector<WriteResult> results = watch.Results();
  watch.RestoreUnanswered(results);
  UnmarkInvalid(session, changed);
  TellDownload(session, results, changes);
  KeepPending(session, notAccepted);
  const ExitCode refused = notAccepted.empty() ? ExitCode::Ok : ExitCode::ValueRefused;
  if (finished) return Worse(ExitCodeOf(results), refused);
  session.Tell().Problem("interrupted", session.Say()(Text::Interrupted));
  return ExitCode::Interrupted;
}

}  // namespace hartframe
