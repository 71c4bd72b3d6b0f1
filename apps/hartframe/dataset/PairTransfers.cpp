#include "hartframe/dataset/PairTransfers.h"

#include "hartframe/dataset/PairTexts.h"
#include "hartframe/values/ValueText.h"

namespace hartframe {

namespace {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::Definition;
using ZAFHartTypes::Variable;

// A shared value belongs to no device.
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

// A live value of the device is no difference that anybody could write.
bool IsLive(const ComparedRow& row) {
  return row.online.variable->Attributes().IsDynamic() && !row.offline.variable->ToBeWritten();
}

// Twice: relations of the first round may convert what others have received.
void MarkOnline(DataSetPair& pair, const std::vector<ComparedRow>& rows) {
  Session& online = pair.Online();
  const auto write = [&](const Definition& definition) {
    online.Database().WriteValue(definition, pair.Offline().Variable(definition)->Value());
    online.Database().SetVariableToBeWritten(definition, true);
  };
  for (const ComparedRow& row : rows) {
    const Definition& definition = row.offline.variable->Definition();
    write(definition);
    online.Kernel().ExecuteRelations(definition);
  }
  for (const ComparedRow& row : rows) write(row.offline.variable->Definition());
}

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

}  // namespace

void KeepConverted(Session& offline, const Definition& variable,
                   const std::function<void()>& change) {
  std::vector<Definition> withUnit;
  for (const Definition& definition : offline.AllVariables(false)) {
    const auto candidate = offline.Variable(definition);
    if (candidate->Available() && candidate->UnitSource().IsSameAs(variable))
      withUnit.push_back(definition);
  }
  change();
  for (const Definition& definition : withUnit)
    offline.Database().SetVariableAvailable(definition, true);
}

void ApplyOffline(DataSetPair& pair, const std::vector<Change>& changes) {
  Session& offline = pair.Offline();
  for (const Change& change : changes) {
    if (pair.IsShared(change.definition))
      ApplyShared(offline, change);
    else
      KeepConverted(offline, change.definition, [&] { ApplyChanges(offline, {change}); });
  }
}

Loaded LoadOnline(DataSetPair& pair) {
  Loaded loaded = LoadDataSet(pair.Online());
  TellLoaded(pair.Online(), loaded);
  return loaded;
}

bool TakeOverLoaded(DataSetPair& pair, const Loaded& loaded) {
  if (loaded.code == ExitCode::Communication || loaded.code == ExitCode::Interrupted) return false;
  Session& offline = pair.Offline();
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
  offline.Tell().Note("takenOver", offline.Say()(texts::kTakenOver, {std::to_string(count)}));
  return true;
}

// What is the same on both sides waits for nothing.
DownloadPlan PlanDownload(DataSetPair& pair, const Loaded& loaded) {
  Session& offline = pair.Offline();
  DownloadPlan plan;
  for (const VariableRow& row : loaded.rows) {
    const Definition& definition = row.variable->Definition();
    ComparedRow compared = Compare(offline.Row(definition), row);
    const bool isWritable = compared.offline.variable->CheckHandling(AccessMode::Write);
    const bool hasSomethingElse =
        compared.match == Match::Differs || compared.match == Match::OnlyOffline;
    if (isWritable && !hasSomethingElse)
      offline.Database().SetVariableToBeWritten(definition, false);
    if (isWritable && hasSomethingElse)
      plan.toWrite.push_back(std::move(compared));
    else if (IsDifference(compared.match) && !IsLive(compared))
      plan.cannot.push_back(std::move(compared));
  }
  return plan;
}

ExitCode CarryOut(DataSetPair& pair, const DownloadPlan& plan) {
  Session& online = pair.Online();
  MarkOnline(pair, plan.toWrite);
  if (PendingVariables(online).empty()) {
    online.Tell().Note("nothingToWrite", online.Say()(Text::NothingToWrite));
    return ExitCode::Ok;
  }
  const Written written = WriteMarked(online);
  TakeResults(pair, written.results);
  if (written.finished) return ExitCodeOf(written.results);
  online.Tell().Problem("interrupted", online.Say()(Text::Interrupted));
  return ExitCode::Interrupted;
}

}  // namespace hartframe
