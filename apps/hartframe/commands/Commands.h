#pragma once

#include "hartframe/Session.h"

namespace hartframe {

// The commands, one file each. What they cannot do ends in a CommandFailure; what happens to single
// variables ends in the exit code.
ExitCode RunUpload(Session& session);
ExitCode RunDownload(Session& session);
ExitCode RunWrite(Session& session);
ExitCode RunRead(Session& session);
ExitCode RunList(Session& session);
ExitCode RunWatch(Session& session);
ExitCode RunInfo(Session& session);
ExitCode RunBrowse(Session& session);
ExitCode RunMenu(Session& session);
ExitCode RunMethod(Session& session);
ExitCode RunSave(Session& session);
ExitCode RunPair(Session& online);
ExitCode RunCompare(Session& online);
ExitCode RunServe(Session& session);

}  // namespace hartframe
