#pragma once

#include <functional>
#include <vector>

#include "hartframe/changes/Changes.h"
#include "hartframe/changes/Transfers.h"
#include "hartframe/dataset/DataSetPair.h"

namespace hartframe {

// What brings the two sides of a pair together, for the line commands and for the screen.

// Changes the offline data set by `change`, which is one of the variable. Values that a changed
// unit converts stay as good as they were: no device will tell them anew.
void KeepConverted(Session& offline, const ZAFHartTypes::Definition& variable,
                   const std::function<void()>& change);
// Makes the changes in the offline data set; shared ones take effect on both sides at once.
// CommandFailure (ValueRefused).
void ApplyOffline(DataSetPair& pair, const std::vector<Change>& changes);

// Loads the online data set, and tells how that ended. What was to be written there is given up.
Loaded LoadOnline(DataSetPair& pair);
// Gives what was loaded to the offline side, which has no changes then; tells how much that was.
// False when the device could not be loaded: nothing has changed.
bool TakeOverLoaded(DataSetPair& pair, const Loaded& loaded);

// The differences between the offline data set and the device that was loaded.
struct DownloadPlan {
  std::vector<ComparedRow> toWrite;
  std::vector<ComparedRow> cannot;  // the DTM lets nobody write it, or the data set has no value
};
DownloadPlan PlanDownload(DataSetPair& pair, const Loaded& loaded);
// Writes what is planned, and tells the outcomes. What the device has taken is the offline side's
// as well; what it did not answer to is still to be written.
ExitCode CarryOut(DataSetPair& pair, const DownloadPlan& plan);

}  // namespace hartframe
