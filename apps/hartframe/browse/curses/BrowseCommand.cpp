#include "hartframe/Commands.h"
#include "hartframe/browse/Browser.h"
#include "hartframe/browse/curses/CursesTerminal.h"

namespace hartframe {

namespace {

// The screen, from its beginning to its end. `notAccepted`: changes of earlier runs that remain.
ExitCode RunScreen(Session& session, std::vector<Change>& notAccepted) {
  browse::CursesTerminal terminal(session.Say());
  browse::Browser browser(session, terminal);
  terminal.SetTarget(&browser.KeyTarget());
  const ExitCode code = browser.Run(notAccepted);
  notAccepted = browser.NotAccepted();
  return code;
}

}  // namespace

ExitCode RunBrowse(Session& session) {
  std::vector<Change> pending = LoadPending(session);
  const ExitCode code = RunScreen(session, pending);
  KeepPending(session, pending);
  return code;
}

}  // namespace hartframe
