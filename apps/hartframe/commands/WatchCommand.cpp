#include <chrono>

#include "hartframe/commands/Commands.h"
#include "hartframe/dataset/DataSet.h"
#include "hartframe/values/Reading.h"
#include "platform/Platform.h"

namespace hartframe {

namespace {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::Definition;

// What the background refresh can read; the user is told about the others.
std::vector<Definition> Watchable(Session& session) {
  std::vector<Definition> watchable;
  ThoroughReader reader(session);
  for (const Definition& definition : session.FindAll(session.Settings().names, false)) {
    std::shared_ptr<ZAFHartTypes::Variable> variable;
    if (!session.Run([&] { variable = reader.Read(definition); })) break;
    const bool readable =
        variable->CheckHandling(AccessMode::Read) && !variable->Attributes().IsLibraryHeld();
    if (readable && variable->Validity()) {
      watchable.push_back(definition);
    } else {
      session.Tell().Problem("notWatched", session.Say()(Text::NotWatched, {definition.Name()}));
    }
  }
  return watchable;
}

}  // namespace

ExitCode RunWatch(Session& session) {
  const Options& options = session.Settings();
  const std::vector<Definition> watched = Watchable(session);
  if (session.Interrupted()) return ExitCode::Interrupted;
  if (watched.empty()) return ExitCode::Usage;
  int updates = 0;
  const auto isDone = [&] { return options.updates > 0 && updates >= options.updates; };
  std::map<std::string, VariableRow> last;
  session.View().Watch(watched, std::chrono::seconds(options.intervalSeconds),
                       [&](const std::vector<Definition>& updated) {
                         for (const Definition& definition : updated) {
                           if (isDone()) return;
                           const VariableRow row = session.Row(definition);
                           session.Tell().Update(row);
                           last.insert_or_assign(row.name, row);
                           ++updates;
                         }
                       });
  while (!isDone() && !session.Interrupted()) {
    platform::Current().Loop().WaitStep(platform::Milliseconds(100));
  }
  session.View().Watch({}, {}, {});
  std::vector<VariableRow> rows;
  for (const auto& [name, row] : last) rows.push_back(row);
  TellTroubles(session, rows);
  if (session.Interrupted() && options.updates > 0) return ExitCode::Interrupted;
  return CodeOfTroubles(rows);
}

}  // namespace hartframe
