#pragma once

#include <functional>

#include "hartframe/Session.h"
#include "hartframe/dataset/KeptDataSet.h"

namespace hartframe {

// Runs a command on the data set on disk that the options name: restores it before, keeps it
// afterwards, whatever the command comes to. Without one just runs the command.
ExitCode RunOnDataSet(Session& session, ExitCode (*command)(Session&));

// Runs an operation on a data set, which is kept whatever it comes to.
ExitCode RunKeeping(KeptDataSet& dataSet, Report& report,
                    const std::function<ExitCode()>& operation);

}  // namespace hartframe
