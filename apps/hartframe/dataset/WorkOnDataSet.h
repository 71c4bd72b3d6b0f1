#pragma once

#include "hartframe/Session.h"

namespace hartframe {

// Runs a command on the data set on disk that the options name: restores it before, keeps it
// afterwards, whatever the command comes to. Without one just runs the command.
ExitCode RunOnDataSet(Session& session, ExitCode (*command)(Session&));

}  // namespace hartframe
