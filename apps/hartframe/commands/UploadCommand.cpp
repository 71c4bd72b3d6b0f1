#include "hartframe/changes/Changes.h"
#include "hartframe/changes/Transfers.h"
#include "hartframe/commands/Commands.h"
#include "types/TextKey.h"

namespace hartframe {

namespace {

std::string NamesOf(const std::vector<Change>& changes) {
  std::string names;
  for (const Change& change : changes)
    names += (names.empty() ? "" : ", ") + change.definition.Name();
  return names;
}

bool IsYes(std::string_view answer, const Speech& say) {
  const std::string yes = say(Text::Yes);
  return !answer.empty() &&
         (ZAFHartTypes::SameKey(answer, yes) || ZAFHartTypes::SameKey(answer, yes.substr(0, 1)));
}

bool UserDiscards(Session& session, const std::vector<Change>& pending) {
  if (pending.empty() || session.Settings().discard) return true;
  const Speech& say = session.Say();
  if (!session.Terminal().CanAsk()) {
    throw CommandFailure(ExitCode::NotAllowed, say(Text::PendingRefused, {NamesOf(pending)}));
  }
  const auto answer = session.Terminal().Ask(say(Text::PendingQuestion, {NamesOf(pending)}),
                                             [&session] { return session.Interrupted(); });
  return answer && IsYes(*answer, say);
}

}  // namespace

bool MayDiscard(Session& session, const std::vector<Change>& pending) {
  if (UserDiscards(session, pending)) return true;
  session.Tell().Problem("uploadKept", session.Say()(Text::UploadKept));
  return false;
}

Loaded LoadDiscarding(Session& session) {
  Loaded loaded = LoadDataSet(session);
  session.Pending().Save({});
  return loaded;
}

ExitCode RunUpload(Session& session) {
  std::vector<Change> pending = PendingChanges(session);
  for (Change& change : LoadPending(session, pending)) pending.push_back(std::move(change));
  if (!MayDiscard(session, pending))
    return session.Interrupted() ? ExitCode::Interrupted : ExitCode::NotAllowed;
  const Loaded loaded = LoadDiscarding(session);
  // Of a device that tells nothing there is nothing to show but the DTM's defaults.
  if (!loaded.IsFruitless()) session.Tell().Variables(loaded.rows);
  TellLoaded(session, loaded);
  return loaded.code;
}

}  // namespace hartframe
