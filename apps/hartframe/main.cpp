#include <memory>

#include "hartframe/Identity.h"
#include "hartframe/PluginProbe.h"
#include "hartframe/commands/Commands.h"
#include "hartframe/dataset/WorkOnDataSet.h"
#include "hartframe/link/LinkCommands.h"
#include "hartframe/report/JsonReport.h"
#include "hartframe/report/TextReport.h"
#include "platform/Platform.h"

namespace hartframe {

namespace {

ExitCode RunCommand(Session& session) {
  switch (session.Settings().command) {
    case CommandKind::Upload:
      return RunUpload(session);
    case CommandKind::Download:
      return RunDownload(session);
    case CommandKind::Write:
      return RunWrite(session);
    case CommandKind::Read:
      return RunRead(session);
    case CommandKind::List:
      return RunList(session);
    case CommandKind::Watch:
      return RunWatch(session);
    case CommandKind::Menu:
      return RunMenu(session);
    case CommandKind::Run:
      return RunMethod(session);
    case CommandKind::Browse:
      return RunBrowse(session);
    case CommandKind::Save:
      return RunSave(session);
    case CommandKind::Pair:
      return RunPair(session);
    case CommandKind::Compare:
      return RunCompare(session);
    case CommandKind::Serve:
      return RunServe(session);
    case CommandKind::Info:
    case CommandKind::Scan:
    case CommandKind::Raw:
    case CommandKind::ProbePlugin:
      break;
  }
  return RunInfo(session);
}

ExitCode RunSession(const Options& options, Console& console, Speech& speech, Report& report) {
  Session session(options, console, speech, report);
  session.Open();
  TellMissingIdentity(session);
  const ExitCode code = RunOnDataSet(session, RunCommand);
  return Worse(Worse(code, session.TellConnection()), session.TellFileErrors());
}

ExitCode RunAny(const Options& options, Console& console, Speech& speech, Report& report) {
  if (options.command == CommandKind::Scan) return RunScan(options, console, speech, report);
  if (options.command == CommandKind::Raw) return RunRaw(options, speech, report);
  return RunSession(options, console, speech, report);
}

ExitCode RunGuarded(const Options& options, Console& console, Speech& speech, Report& report) {
  try {
    return RunAny(options, console, speech, report);
  } catch (const CommandFailure& failure) {
    report.Problem(NameOf(failure.Code()), failure.Description());
    return failure.Code();
  } catch (const platform::Failure& failure) {
    const bool isInterrupted = failure.Number() == platform::ErrorNumber::Cancelled;
    const ExitCode code = isInterrupted ? ExitCode::Interrupted : ExitCode::Internal;
    report.Problem(NameOf(code), isInterrupted ? speech(Text::Interrupted)
                                               : failure.Source() + ": " + failure.Description());
    return code;
  }
}

int Run(const Options& options) {
  if (options.command == CommandKind::ProbePlugin) return RunPluginProbe(options.plugin);
  platform::Current().Locale() = platform::UserLocale::FromEnvironment();
  Console console;
  Speech speech(options.language);
  std::unique_ptr<Report> report;
  if (options.json)
    report = std::make_unique<JsonReport>(console, options);
  else
    report = std::make_unique<TextReport>(console, speech);
  const ExitCode code = RunGuarded(options, console, speech, *report);
  report->Finish(code);
  return static_cast<int>(code);
}

}  // namespace

}  // namespace hartframe

int main(int argc, char** argv) {
  return hartframe::Run(hartframe::ParseCommandLine(argc, argv));
}
