#include "hartframe/changes/Changes.h"
#include "hartframe/changes/Transfers.h"
#include "hartframe/changes/WritePartners.h"
#include "hartframe/changes/WriteWatch.h"
#include "hartframe/commands/Commands.h"

namespace hartframe {

namespace {

using ZAFHartTypes::Definition;

// The marks that a data set on disk brings are not looked at before.
std::vector<Definition> HoldBackInvalid(Session& session) {
  std::vector<Definition> invalid;
  for (const Definition& definition : PendingVariables(session)) {
    if (session.Variable(definition)->Validity()) continue;
    session.Database().SetVariableToBeWritten(definition, false);
    session.Tell().Problem(NameOf(ExitCode::ValueRefused),
                           session.Say()(Text::NotValidNow, {definition.Name()}));
    invalid.push_back(definition);
  }
  return invalid;
}

void TellWritten(Session& session, const std::vector<WriteResult>& results) {
  const auto written = std::count_if(results.begin(), results.end(), [](const WriteResult& result) {
    return result.outcome == Outcome::Written || result.outcome == Outcome::Adjusted;
  });
  session.Tell().WriteResults(results);
  session.Tell().Note("written", session.Say()(Text::Written, {std::to_string(written),
                                                               std::to_string(results.size())}));
}

}  // namespace

Written WriteMarked(Session& session) {
  Written written;
  const std::vector<Definition> invalid = HoldBackInvalid(session);
  written.heldBack = !invalid.empty();
  const std::shared_ptr<void> marked(nullptr, [&](void*) {
    for (const Definition& definition : invalid)
      session.Database().SetVariableToBeWritten(definition, true);
  });
  WriteWatch watch(session, PendingVariables(session));
  const bool goesOn = HoldBackUnread(session);
  written.finished = session.Run([&] {
    if (goesOn) session.Components().WriteChanges();
  });
  written.results = watch.Results();
  watch.RestoreUnanswered(written.results);
  TellWritten(session, written.results);
  return written;
}

ExitCode WriteAndTell(Session& session, const std::vector<Change>& notAccepted) {
  if (PendingVariables(session).empty()) {
    session.Tell().Note("nothingToWrite", session.Say()(Text::NothingToWrite));
    return notAccepted.empty() ? ExitCode::Ok : ExitCode::ValueRefused;
  }
  const Written written = WriteMarked(session);
  KeepPending(session, notAccepted);
  if (!written.finished) {
    session.Tell().Problem("interrupted", session.Say()(Text::Interrupted));
    return ExitCode::Interrupted;
  }
  const bool isComplete = notAccepted.empty() && !written.heldBack;
  return Worse(ExitCodeOf(written.results), isComplete ? ExitCode::Ok : ExitCode::ValueRefused);
}

ExitCode RunWrite(Session& session) {
  RequireWriteAccess(session);
  const std::vector<Change> changes = ParseChanges(session, session.Settings().changes);
  const std::vector<Change> pending = LoadPending(session, changes);
  std::vector<Change> all = pending;
  all.insert(all.end(), changes.begin(), changes.end());
  const ExitCode read = ReadForChanges(session, all);
  if (read == ExitCode::Interrupted) {
    KeepPending(session, ApplyPending(session, all));
    return read;
  }
  const std::vector<Change> notAccepted = ApplyPending(session, pending);
  try {
    ApplyChanges(session, changes);
  } catch (const CommandFailure& failure) {
    // The data set is not the device's when that did not answer.
    throw CommandFailure(Worse(read, failure.Code()), failure.Description());
  }
  return WriteAndTell(session, notAccepted);
}

}  // namespace hartframe
