#pragma once

#include <string>
#include <vector>

#include "debugger/Breakpoints.h"
#include "debugger/TraceView.h"
#include "interfaces/IDDWorkerDB.h"

// What can be looked at where an execution has stopped. Nothing of it changes the database.
namespace ZAFHartDebugger {

// The running operations, outermost first, and how long each has run.
void ShowOperations(TraceView& view, OperationStack& operations, Time now);
// The objects whose names match. Raises InvalidArgument when none does.
void ShowObjects(TraceView& view, const ZAFHartTypes::IDDWorkerDB& database,
                 const std::string& pattern);
// Raises InvalidArgument when the database has no object of that name.
void RequireObject(const ZAFHartTypes::IDDWorkerDB& database, const std::string& name);
void ShowStops(TraceView& view, const Breakpoints& breakpoints,
               const std::vector<std::string>& watched);

}  // namespace ZAFHartDebugger
