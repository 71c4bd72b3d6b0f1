#include "hartframe/Changes.h"
#include "hartframe/Commands.h"
#include "hartframe/WriteWatch.h"

namespace hartframe {

namespace {

void TellWritten(Session& session, const std::vector<WriteResult>& results) {
  const auto written = std::count_if(results.begin(), results.end(), [](const WriteResult& result) {
    return result.outcome == Outcome::Written || result.outcome == Outcome::Adjusted;
  });
  session.Tell().WriteResults(results);
  session.Tell().Note("written", session.Say()(Text::Written, {std::to_string(written),
                                                               std::to_string(results.size())}));
}

}  // namespace

ExitCode RunWrite(Session& session) {
  RequireWriteAccess(session);
  const std::vector<Change> pending = LoadPending(session);
  const std::vector<Change> changes = ParseChanges(session, session.Settings().changes);
  if (!ReadForChanges(session, pending) || !ReadForChanges(session, changes)) {
    session.Tell().Problem("interrupted", session.Say()(Text::Interrupted));
    return ExitCode::Interrupted;
  }
  ApplyPending(session, pending);
  ApplyChanges(session, changes);

  if (PendingVariables(session).empty()) {
    session.Tell().Note("nothingToWrite", session.Say()(Text::NothingToWrite));
    return ExitCode::Ok;
  }
  WriteWatch watch(session, PendingVariables(session));
  const bool finished = session.Run([&] { session.Components().WriteChanges(); });
  const std::vector<WriteResult> results = watch.Results();
  watch.RestoreUnanswered(results);
  TellWritten(session, results);
  KeepPending(session);
  if (finished) return ExitCodeOf(results);
  session.Tell().Problem("interrupted", session.Say()(Text::Interrupted));
  return ExitCode::Interrupted;
}

}  // namespace hartframe
