#pragma once

#include <vector>

#include "hartframe/changes/Changes.h"
#include "hartframe/changes/WriteWatch.h"
#include "hartframe/dataset/DataSet.h"

namespace hartframe {

// What upload, write and download come to once it is known which changes are meant. Each tells how
// it ended; changes that are still to be written are kept for a later run.

// Loads the data set; what was to be written is given up.
Loaded LoadDiscarding(Session& session);
// An upload gives up what is still to be written: only when the user says so. Tells when not.
bool MayDiscard(Session& session, const std::vector<Change>& pending);
// Writes all variables that are to be written, and tells the outcomes. Those that are not valid in
// this configuration are told and wait. What is left is kept nowhere.
struct Written {
  std::vector<WriteResult> results;
  bool finished = true;   // no Ctrl-C
  bool heldBack = false;  // something waits
};
Written WriteMarked(Session& session);
// Writes all variables that are to be written. `notAccepted`: changes of earlier runs that could
// not be made, and stay as they are.
ExitCode WriteAndTell(Session& session, const std::vector<Change>& notAccepted);
// Writes the whole data set, which was loaded and then changed.
ExitCode DownloadAndTell(Session& session, const Loaded& loaded, const std::vector<Change>& changes,
                         const std::vector<Change>& notAccepted);

}  // namespace hartframe
