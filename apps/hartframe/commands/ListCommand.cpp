#include "hartframe/changes/Changes.h"
#include "hartframe/commands/Commands.h"

namespace hartframe {

// The data set as it is without the device: defaults, and changes that are still to be written.
ExitCode RunList(Session& session) {
  const Options& options = session.Settings();
  session.Comm().SetEmulate(true);
  ApplyPending(session, LoadPending(session));
  const auto definitions = options.names.empty()
                               ? session.AllVariables(options.internalToo)
                               : session.FindAll(options.names, options.internalToo);
  std::vector<VariableRow> rows;
  for (const auto& definition : definitions) {
    VariableRow row = session.Row(definition);
    if (row.variable->ToBeWritten() || !options.pendingOnly) rows.push_back(std::move(row));
  }
  session.Tell().Variables(rows);
  return ExitCode::Ok;
}

}  // namespace hartframe
