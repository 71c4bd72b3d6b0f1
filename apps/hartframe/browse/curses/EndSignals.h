#pragma once

namespace hartframe::browse::EndSignals {

// Signals that end the process while ncurses has the terminal. SIGTERM and SIGHUP are noted, for an
// end in good order; a second one, and a crash, put the terminal back and take their course, and so
// does a second Ctrl-C.
void Install();
void Remove();
bool HasCome();

}  // namespace hartframe::browse::EndSignals
