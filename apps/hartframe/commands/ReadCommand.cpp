#include "hartframe/commands/Commands.h"
#include "hartframe/dataset/DataSet.h"
#include "hartframe/values/Reading.h"

namespace hartframe {

ExitCode RunRead(Session& session) {
  std::vector<VariableRow> rows;
  const auto definitions = session.FindAll(session.Settings().names, false);
  ThoroughReader reader(session);
  const bool finished = session.Run([&] {
    for (const auto& definition : definitions) {
      const auto variable = reader.Read(definition);
      if (session.Interrupted()) return;
      rows.push_back(MakeRow(variable, session.Say()));
    }
  });
  session.Tell().Variables(rows);
  if (finished) return TellHowRead(session, reader.Rows());
  TellTroubles(session, reader.Rows());
  session.Tell().Problem(
      "interrupted",
      session.Say()(Text::InterruptedLeft, {std::to_string(definitions.size() - rows.size())}));
  return ExitCode::Interrupted;
}

}  // namespace hartframe
