#include "hartframe/link/DeviceScan.h"
#include "hartframe/link/LinkCommands.h"
#include "hartframe/link/LinkTexts.h"
#include "types/Failure.h"

namespace hartframe {

namespace {

void TellProblems(const DeviceScan& scan, const Speech& say, Report& report) {
  for (const DeviceScan::Disturbed& problem : scan.Problems()) {
    const std::string reason =
        problem.reason.empty() ? say(texts::kNoIdentityInReply) : problem.reason;
    report.Problem("disturbed", say(texts::kDisturbedAddress,
                                    {std::to_string(problem.pollingAddress), OneLine(reason)}));
  }
}

ExitCode TellScan(const DeviceScan& scan, bool isInterrupted, const Speech& say, Report& report) {
  report.Devices(scan.Devices());
  report.Note("found", say(texts::kFound, {std::to_string(scan.Devices().size())}));
  TellProblems(scan, say, report);
  if (isInterrupted) {
    report.Problem("interrupted", say(Text::Interrupted));
    return ExitCode::Interrupted;
  }
  const bool isGood = scan.Problems().empty() && !scan.Devices().empty();
  return isGood ? ExitCode::Ok : ExitCode::Communication;
}

}  // namespace

ExitCode RunScan(const Options& options, Console& console, const Speech& say, Report& report) {
  DirectLink link(options);
  DeviceScan scan(link, say);
  const int count = options.lastAddress - options.firstAddress + 1;
  const std::string title = say(texts::kScanning);
  bool isInterrupted = false;
  try {
    const std::shared_ptr<void> ended(nullptr, [&](void*) { console.Progress(title, -1); });
    scan.Run(options.firstAddress, options.lastAddress,
             [&](int done) { console.Progress(title, 100.0 * done / count); });
  } catch (const platform::Failure& failure) {
    if (failure.Number() != platform::ErrorNumber::Cancelled) throw;
    isInterrupted = true;
  }
  return TellScan(scan, isInterrupted, say, report);
}

}  // namespace hartframe
