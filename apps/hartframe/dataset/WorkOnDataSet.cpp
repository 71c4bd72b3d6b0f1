#include "hartframe/dataset/WorkOnDataSet.h"

#include "hartframe/dataset/DataSetTexts.h"
#include "hartframe/dataset/KeptDataSet.h"

namespace hartframe {

namespace {

// How a command takes the data set on disk.
struct Usage {
  bool onlyLooks = false;   // needs the file, and leaves it alone
  bool usesValues = false;  // works with the values of the file, not with those of the device
  bool meetsDevice = true;
};

Usage UsageOf(const Options& options) {
  switch (options.command) {
    case CommandKind::List:
      return {.onlyLooks = true, .usesValues = true, .meetsDevice = false};
    case CommandKind::Info:
      return {.onlyLooks = true};
    case CommandKind::Download:
      return {.usesValues = true};
    case CommandKind::Save:
      return {.usesValues = options.noUpload, .meetsDevice = !options.noUpload};
    default:
      return {};
  }
}

void Open(Session& session, const Usage& usage) {
  const auto kept = std::make_shared<KeptDataSet>(session, session.Settings().dataSetFile);
  kept->Restore();
  session.TakeBusyAttempts();
  const std::string path = kept->Path().string();
  if (kept->IsNew() && usage.onlyLooks)
    throw CommandFailure(ExitCode::FileBroken, session.Say()(texts::kNoFile, {path}));
  session.SetKept(kept);
  if (kept->IsNew()) session.Tell().Note("newDataSet", session.Say()(texts::kNewDataSet, {path}));
  if (!usage.usesValues) kept->ExpectReading();
  if (usage.meetsDevice) kept->RequireSameDevice(session);
}

}  // namespace

ExitCode RunKeeping(KeptDataSet& dataSet, Report& report,
                    const std::function<ExitCode()>& operation) {
  try {
    const ExitCode code = operation();
    dataSet.Keep();
    return code;
  } catch (const platform::Failure& end) {
    // The operation's own end counts; that the file cannot be written is told besides.
    try {
      dataSet.Keep();
    } catch (const CommandFailure& failure) {
      if (failure.Description() != end.Description())
        report.Problem(NameOf(failure.Code()), failure.Description());
    }
    throw;
  }
}

ExitCode RunOnDataSet(Session& session, ExitCode (*command)(Session&)) {
  const Options& options = session.Settings();
  if (options.dataSetFile.empty() || OpensPair(options)) return command(session);
  const Usage usage = UsageOf(options);
  Open(session, usage);
  if (usage.onlyLooks) return command(session);
  return RunKeeping(*session.Kept(), session.Tell(), [&] { return command(session); });
}

}  // namespace hartframe
