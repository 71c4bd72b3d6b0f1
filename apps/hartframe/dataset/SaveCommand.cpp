#include <algorithm>

#include "hartframe/changes/Changes.h"
#include "hartframe/commands/Commands.h"
#include "hartframe/dataset/DataSet.h"
#include "hartframe/dataset/DataSetTexts.h"
#include "hartframe/dataset/KeptDataSet.h"

namespace hartframe {

namespace {

// The change is given anew, or waits in this session as well.
bool IsHeld(Session& session, const StoredVariable& stored, const std::vector<Change>& anew) {
  const auto variable = session.Variable(session.Find(stored.name));
  if (variable->ToBeWritten() && variable->Value() == stored.value) return true;
  return std::any_of(anew.begin(), anew.end(), [&](const Change& change) {
    return change.definition.IsSameAs(variable->Definition());
  });
}

// Only a data set of the same DTM is replaced; anything else at that place is somebody's. So are
// its changes that are still to be written.
void RequireReplaceable(Session& session, const DataSetFile& file,
                        const std::vector<Change>& anew) {
  if (!file.Exists()) return;
  const StoredDataSet replaced = file.Load();
  KeptDataSet::RequireSameDtm(session, file, replaced);
  if (session.Settings().discard) return;
  std::string lost;
  for (const StoredVariable& stored : replaced.variables) {
    if (!stored.toBeWritten || IsHeld(session, stored, anew)) continue;
    lost += (lost.empty() ? "" : ", ") + stored.name;
  }
  if (lost.empty()) return;
  throw CommandFailure(ExitCode::NotAllowed,
                       session.Say()(texts::kHoldsChanges, {file.Path().string(), lost}));
}

// Loads from the device; what waited to be written does so again afterwards. Nothing is saved of a
// device that does not answer.
ExitCode LoadForSaving(Session& session) {
  std::vector<std::shared_ptr<ZAFHartTypes::Variable>> marked;
  for (const auto& definition : PendingVariables(session))
    marked.push_back(session.Variable(definition));
  const Loaded loaded = LoadDataSet(session);
  for (const auto& variable : marked) {
    session.Database().WriteValue(variable->Definition(), variable->Value());
    session.Database().SetVariableToBeWritten(variable->Definition(), true);
  }
  TellLoaded(session, loaded);
  if (loaded.code == ExitCode::Communication || loaded.code == ExitCode::Interrupted)
    throw CommandFailure(loaded.code, session.Say()(texts::kNotSaved));
  return loaded.code;
}

}  // namespace

ExitCode RunSave(Session& session) {
  const DataSetFile file(session.Settings().saveFile, session.Say());
  const std::vector<Change> changes = ParseChanges(session, session.Settings().changes);
  const std::vector<Change> pending = LoadPending(session, changes);
  RequireReplaceable(session, file, changes);
  ExitCode code = ExitCode::Ok;
  if (session.Settings().noUpload)
    session.Comm().SetEmulate(true);
  else
    code = LoadForSaving(session);
  if (!ApplyPending(session, pending).empty()) code = Worse(code, ExitCode::ValueRefused);
  ApplyChanges(session, changes);
  KeptDataSet unnamed(session, {});
  KeptDataSet& held = session.Kept() ? *session.Kept() : unnamed;
  const std::size_t count = held.SaveTo(file);
  session.Tell().Note("saved",
                      session.Say()(texts::kSaved, {std::to_string(count), file.Path().string()}));
  return code;
}

}  // namespace hartframe
