#include <algorithm>

#include "hartframe/commands/Commands.h"
#include "hartframe/dataset/DataSet.h"
#include "hartframe/dataset/DataSetPair.h"
#include "hartframe/dataset/DataSetTexts.h"
#include "hartframe/dataset/PairTexts.h"
#include "hartframe/values/Reading.h"

namespace hartframe {

namespace {

using ZAFHartTypes::Definition;

struct ReadDevice {
  std::vector<Definition> variables;
  ExitCode code;
};

// The data set of the device, or the variables that are asked for.
ReadDevice Read(Session& online) {
  ReadDevice read;
  if (online.Settings().names.empty()) {
    const Loaded loaded = LoadDataSet(online);
    TellLoaded(online, loaded);
    for (const VariableRow& row : loaded.rows) read.variables.push_back(row.variable->Definition());
    read.code = loaded.code;
    return read;
  }
  read.variables = online.FindAll(online.Settings().names, false);
  ThoroughReader reader(online);
  const bool finished = online.Run([&] {
    for (const Definition& definition : read.variables) reader.Read(definition);
  });
  TellTroubles(online, reader.Rows());
  read.code = finished ? CodeOfTroubles(reader.Rows()) : ExitCode::Interrupted;
  return read;
}

ExitCode TellComparison(Session& online, std::vector<ComparedRow> rows) {
  const std::string sentence = SummaryOf(rows, online.Say());
  const bool different = std::any_of(
      rows.begin(), rows.end(), [](const ComparedRow& row) { return IsDifference(row.match); });
  if (online.Settings().differencesOnly)
    std::erase_if(rows, [](const ComparedRow& row) { return !IsDifference(row.match); });
  online.Tell().Comparison(rows);
  online.Tell().Note("compared", sentence);
  return different ? ExitCode::Different : ExitCode::Ok;
}

}  // namespace

// Looks only: the file stays as it is.
ExitCode RunCompare(Session& online) {
  DataSetPair pair(online);
  if (pair.File().IsNew()) {
    throw CommandFailure(ExitCode::FileBroken,
                         online.Say()(texts::kNoFile, {pair.File().Path().string()}));
  }
  const ReadDevice read = Read(online);
  if (read.code == ExitCode::Communication || read.code == ExitCode::Interrupted) return read.code;
  std::vector<ComparedRow> rows;
  for (const Definition& definition : read.variables)
    rows.push_back(Compare(pair.Offline().Row(definition), online.Row(definition)));
  return Worse(read.code, TellComparison(online, std::move(rows)));
}

}  // namespace hartframe
