#include "hartframe/Commands.h"
#include "hartframe/DataSet.h"
#include "hartframe/Reading.h"

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
  TellTroubles(session, reader.Rows());
  if (finished) {
    const ExitCode unreadable = TellUnreadable(session, reader.Rows());
    const ExitCode trouble = CodeOfTroubles(reader.Rows());
    return trouble == ExitCode::Ok ? unreadable : trouble;
  }
  session.Tell().Problem(
      "interrupted",
      session.Say()(Text::InterruptedLeft, {std::to_string(definitions.size() - rows.size())}));
  return ExitCode::Interrupted;
}

}  // namespace hartframe
