#pragma once

#include <string>
#include <vector>

#include "hartframe/Session.h"

namespace hartframe {

// A change that the user wants, by variable.
struct Change {
  ZAFHartTypes::Definition definition;
  std::string value;  // as typed
};

// Takes "NAME=VALUE" texts apart. CommandFailure (Usage) for another form, an unknown
// name, or one that is given twice.
std::vector<Change> ParseChanges(Session& session, const std::vector<std::string>& texts);
// Changes of earlier runs that are still to be written, without those of variables that are to be
// changed anew. CommandFailure: FileBroken, or NotAllowed when the data set on disk is to write
// another value.
std::vector<Change> LoadPending(Session& session, const std::vector<Change>& anew = {});

// Reads what the changes concern, so that limits and units are the device's, and tells what went
// wrong with that.
ExitCode ReadForChanges(Session& session, const std::vector<Change>& changes);
// Puts the changes into the data set, where they wait to be written. CommandFailure (ValueRefused)
// for the first one that the DTM does not accept, with what it would.
void ApplyChanges(Session& session, const std::vector<Change>& changes);
// The same for changes of earlier runs. Tells about those that are not accepted (now that the
// device does not answer, say) and returns them.
std::vector<Change> ApplyPending(Session& session, const std::vector<Change>& changes);

// Variables that are to be written, in database order.
std::vector<ZAFHartTypes::Definition> PendingVariables(Session& session);
// The same as changes that make them so again.
std::vector<Change> PendingChanges(Session& session);
// The variable is no longer to be written; its value is the device's again once it is read.
void GiveUpChange(Session& session, const ZAFHartTypes::Definition& variable);
// Keeps for a later run what is still to be written, and `notAccepted`, as KeepPending does; tells
// nothing.
void SaveChanges(Session& session, const std::vector<Change>& notAccepted);
// Tells what is still to be written, and keeps it for a later run together with `notAccepted`: in
// the data set on disk, when the session works on one; what is not accepted, and all without one,
// in the file of pending changes.
void KeepPending(Session& session, const std::vector<Change>& notAccepted);
// CommandFailure (NotAllowed) for an observer.
void RequireWriteAccess(const Session& session);

}  // namespace hartframe
