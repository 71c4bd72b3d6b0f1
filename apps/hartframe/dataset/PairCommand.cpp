#include "hartframe/commands/Commands.h"
#include "hartframe/dataset/DataSetTexts.h"
#include "hartframe/dataset/PairTransfers.h"
#include "hartframe/dataset/WorkOnDataSet.h"

namespace hartframe {

namespace {

// The device's values go to the offline side, then the changes are made.
ExitCode Upload(DataSetPair& pair, const std::vector<Change>& changes,
                const std::vector<Change>& pending) {
  Session& offline = pair.Offline();
  std::vector<Change> lost = PendingChanges(offline);
  lost.insert(lost.end(), pending.begin(), pending.end());
  if (!MayDiscard(offline, lost))
    return offline.Interrupted() ? ExitCode::Interrupted : ExitCode::NotAllowed;
  const Loaded loaded = LoadOnline(pair);
  if (!TakeOverLoaded(pair, loaded)) return loaded.code;
  offline.Pending().Save({});
  if (loaded.code != ExitCode::Ok) return loaded.code;
  ApplyOffline(pair, changes);
  KeepPending(offline, {});
  return ExitCode::Ok;
}

ExitCode Download(DataSetPair& pair) {
  const Loaded loaded = LoadOnline(pair);
  if (!loaded.IsComplete()) {
    pair.Online().Tell().Problem("incomplete", pair.Online().Say()(Text::IncompleteDataSet));
    return loaded.code;
  }
  return CarryOut(pair, PlanDownload(pair, loaded));
}

ExitCode Act(DataSetPair& pair) {
  Session& offline = pair.Offline();
  const Options& options = offline.Settings();
  const std::vector<Change> changes = ParseChanges(offline, options.changes);
  const std::vector<Change> pending = LoadPending(offline, changes);
  if (options.uploadPair) return Upload(pair, changes, pending);
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
  // A mistyped name must not bring the DTM's defaults to the device.
  if (pair.File().IsNew() && options.downloadPair) {
    throw CommandFailure(ExitCode::FileBroken,
                         online.Say()(texts::kNoFile, {pair.File().Path().string()}));
  }
  if (pair.File().IsNew()) {
    online.Tell().Note("newDataSet",
                       online.Say()(texts::kNewDataSet, {pair.File().Path().string()}));
  }
  return RunKeeping(pair.File(), online.Tell(), [&] { return Act(pair); });
}

}  // namespace hartframe
