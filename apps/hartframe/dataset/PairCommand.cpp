#include "hartframe/Commands.h"
#include "hartframe/Transfers.h"
#include "hartframe/ValueText.h"
#include "hartframe/dataset/DataSetPair.h"
#include "hartframe/dataset/DataSetTexts.h"
#include "hartframe/dataset/PairTexts.h"
#include "hartframe/dataset/WorkOnDataSet.h"

namespace hartframe {

namespace {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::Definition;
using ZAFHartTypes::Variable;

// A shared value belongs to no device, and takes effect on both sides at once.
void ApplyShared(Session& offline, const Change& change) {
  const auto variable = offline.Variable(change.definition);
  const auto value = AcceptedValue(change.value, *variable);
  if (!value) {
    throw CommandFailure(ExitCode::ValueRefused,
                         RefusalSentence(change.value, *variable, offline.Say()));
  }
  offline.Database().WriteValue(change.definition, *value);
  offline.Tell().Note("shared", offline.Say()(texts::kShared, {change.definition.Name()}));
}

// A value that a change of its unit converts counts as the device's to tell anew. Offline nobody
// will, and the converted one is as good as it was.
void ApplyUnread(Session& offline, const Change& change) {
  std::vector<Definition> withUnit;
  for (const Definition& definition : offline.AllVariables(false)) {
    const auto variable = offline.Variable(definition);
    if (variable->Available() && variable->UnitSource().IsSameAs(change.definition))
      withUnit.push_back(definition);
  }
  ApplyChanges(offline, {change});
  for (const Definition& definition : withUnit)
    offline.Database().SetVariableAvailable(definition, true);
}

void ApplyOffline(DataSetPair& pair, const std::vector<Change>& changes) {
  for (const Change& change : changes) {
    if (pair.IsShared(change.definition))
      ApplyShared(pair.Offline(), change);
    else
      ApplyUnread(pair.Offline(), change);
  }
}

// The device's values go to the offline side.
ExitCode Upload(DataSetPair& pair, const std::vector<Change>& pending) {
  Session& offline = pair.Offline();
  std::vector<Change> lost = PendingChanges(offline);
  lost.insert(lost.end(), pending.begin(), pending.end());
  if (!MayDiscard(offline, lost))
    return offline.Interrupted() ? ExitCode::Interrupted : ExitCode::NotAllowed;
  const Loaded loaded = LoadDataSet(pair.Online());
  TellLoaded(pair.Online(), loaded);
  if (loaded.code == ExitCode::Communication || loaded.code == ExitCode::Interrupted)
    return loaded.code;
  std::size_t count = 0;
  for (const VariableRow& row : loaded.rows) {
    const Variable& variable = *row.variable;
    if (!variable.Validity() || !variable.Available() || TroubleOf(variable) != Trouble::None)
      continue;
    pair.TakeOver(variable);
    ++count;
  }
  pair.File().SettleUnits();
  offline.Database().SetVariableToBeWritten({}, false);
  offline.Pending().Save({});
  offline.Tell().Note("takenOver", offline.Say()(texts::kTakenOver, {std::to_string(count)}));
  return loaded.code;
}

// What the offline side has and a device can take, when the device has something else.
std::vector<Definition> FindDifferences(DataSetPair& pair, const Loaded& loaded) {
  std::vector<Definition> different;
  for (const VariableRow& row : loaded.rows) {
    const Definition& definition = row.variable->Definition();
    const ComparedRow compared = Compare(pair.Offline().Row(definition), row);
    const Variable& offline = *compared.offline.variable;
    if (!offline.CheckHandling(AccessMode::Write)) continue;
    if (compared.match == Match::Differs || compared.match == Match::OnlyOffline)
      different.push_back(definition);
    else
      pair.Offline().Database().SetVariableToBeWritten(definition, false);
  }
  return different;
}

// Twice: relations of the first round may convert what others have received.
void MarkOnline(DataSetPair& pair, const std::vector<Definition>& variables) {
  Session& online = pair.Online();
  const auto write = [&](const Definition& definition) {
    online.Database().WriteValue(definition, pair.Offline().Variable(definition)->Value());
    online.Database().SetVariableToBeWritten(definition, true);
  };
  for (const Definition& definition : variables) {
    write(definition);
    online.Kernel().ExecuteRelations(definition);
  }
  for (const Definition& definition : variables) write(definition);
}

// What the device has taken is the offline side's as well; what it did not answer to is still to be
// written.
void TakeResults(DataSetPair& pair, const std::vector<WriteResult>& results) {
  for (const WriteResult& result : results) {
    const Variable& variable = *result.row.variable;
    const bool isTaken = result.outcome == Outcome::Written || result.outcome == Outcome::Adjusted;
    const bool waits =
        result.outcome == Outcome::NoAnswer || result.outcome == Outcome::NotAttempted;
    if (isTaken && variable.Available()) pair.TakeOver(variable);
    pair.Offline().Database().SetVariableToBeWritten(variable.Definition(), waits);
  }
}

ExitCode Download(DataSetPair& pair) {
  Session& online = pair.Online();
  const Speech& say = online.Say();
  const Loaded loaded = LoadDataSet(online);
  TellLoaded(online, loaded);
  if (!loaded.IsComplete()) {
    online.Tell().Problem("incomplete", say(Text::IncompleteDataSet));
    return loaded.code;
  }
  MarkOnline(pair, FindDifferences(pair, loaded));
  if (PendingVariables(online).empty()) {
    online.Tell().Note("nothingToWrite", say(Text::NothingToWrite));
    return ExitCode::Ok;
  }
  const Written written = WriteMarked(online);
  TakeResults(pair, written.results);
  if (written.finished) return ExitCodeOf(written.results);
  online.Tell().Problem("interrupted", say(Text::Interrupted));
  return ExitCode::Interrupted;
}

ExitCode Act(DataSetPair& pair) {
  Session& offline = pair.Offline();
  const Options& options = offline.Settings();
  const std::vector<Change> changes = ParseChanges(offline, options.changes);
  const std::vector<Change> pending = LoadPending(offline, changes);
  if (options.uploadPair) {
    const ExitCode code = Upload(pair, pending);
    if (code != ExitCode::Ok) return code;
    ApplyOffline(pair, changes);
    KeepPending(offline, {});
    return code;
  }
  const std::vector<Change> notAccepted = ApplyPending(offline, pending);
  ApplyOffline(pair, changes);
  const ExitCode code = options.downloadPair ? Download(pair) : ExitCode::Ok;
  KeepPending(offline, notAccepted);
  return Worse(code, notAccepted.empty() ? ExitCode::Ok : ExitCode::ValueRefused);
}

}  // namespace

ExitCode RunPair(Session& online) {
  const Options& options = online.Settings();
  if (options.downloadPair || !options.changes.empty()) RequireWriteAccess(online);
  DataSetPair pair(online);
  if (pair.File().IsNew()) {
    online.Tell().Note("newDataSet",
                       online.Say()(texts::kNewDataSet, {pair.File().Path().string()}));
  }
  return RunKeeping(pair.File(), online.Tell(), [&] { return Act(pair); });
}

}  // namespace hartframe
