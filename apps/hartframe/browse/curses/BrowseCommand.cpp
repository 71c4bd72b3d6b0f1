#include "hartframe/browse/Browser.h"
#include "hartframe/browse/curses/CursesTerminal.h"
#include "hartframe/commands/Commands.h"
#include "hartframe/dataset/WorkOnDataSet.h"

namespace hartframe {

namespace {

// How the screen was left.
struct Left {
  ExitCode code;
  std::vector<Change> notAccepted;  // changes of earlier runs that remain
  bool isAbandoned;
};

// The screen, from its beginning to its end. `shown`: a session or a pair.
template <typename Shown>
Left RunScreen(Shown& shown, const Speech& say, const std::vector<Change>& pending) {
  browse::CursesTerminal terminal(say);
  browse::Browser browser(shown, terminal);
  terminal.SetTarget(&browser.KeyTarget());
  const ExitCode code = browser.Run(pending);
  return {code, browser.NotAccepted(), browser.IsAbandoned()};
}

// `owner`: of the changes.
template <typename Shown>
ExitCode RunAndKeep(Shown& shown, Session& owner) {
  const Left left = RunScreen(shown, owner.Say(), LoadPending(owner));
  if (!left.isAbandoned) KeepPending(owner, left.notAccepted);
  return left.code;
}

ExitCode RunPairScreen(Session& online) {
  DataSetPair pair(online);
  return RunKeeping(pair.File(), online.Tell(), [&] { return RunAndKeep(pair, pair.Offline()); });
}

}  // namespace

ExitCode RunBrowse(Session& session) {
  return session.Settings().browsePair ? RunPairScreen(session) : RunAndKeep(session, session);
}

}  // namespace hartframe
