#include "hartframe/browse/DataSetActions.h"

#include "hartframe/Transfers.h"
#include "hartframe/browse/BrowseTexts.h"
#include "hartframe/browse/Dialogs.h"

namespace hartframe::browse {

bool DataSetActions::RunAndShow(const char* title, const std::function<void()>& operation) {
  std::string transcript;
  screen_.Record(&transcript);
  const bool finished = screen_.Work(operation);
  screen_.Record(nullptr);
  while (transcript.ends_with('\n')) transcript.pop_back();
  if (transcript.empty()) return finished;
  TextDialog dialog(session_.Say(),
                    {DialogStyle::Information, session_.Say()(title), transcript, {}});
  screen_.Run(dialog);
  return finished;
}

// "No" is selected: one key too many does nothing.
bool DataSetActions::Confirm(const char* title, const std::string& question, const char* yes) {
  const Speech& say = session_.Say();
  ChoiceDialog dialog(say, {DialogStyle::Question, say(title), question, {}},
                      {say(texts::kNo), say(yes)}, 0);
  return screen_.Run(dialog) && dialog.Selected() == 1;
}

void DataSetActions::TakeOver(const std::vector<Change>& pending) {
  notAccepted_ = pending;
  if (pending.empty() || session_.Settings().userLevel == ZAFHartTypes::UserLevel::Observer) return;
  RunAndShow(texts::kPendingTitle, [&] {
    if (ReadForChanges(session_, pending) == ExitCode::Interrupted) return;
    notAccepted_ = ApplyPending(session_, pending);
  });
}

void DataSetActions::Upload() {
  const std::size_t pending = Pending();
  if (pending > 0 &&
      !Confirm(texts::kUpload, session_.Say()(texts::kUploadQuestion, {std::to_string(pending)}),
               texts::kLoad)) {
    return;
  }
  RunAndShow(texts::kUpload, [&] {
    const Loaded loaded = LoadDiscarding(session_);
    notAccepted_.clear();
    TellLoaded(session_, loaded);
  });
}

void DataSetActions::Download() {
  if (!Confirm(texts::kDownload, session_.Say()(texts::kDownloadQuestion), texts::kWriteAll))
    return;
  RunAndShow(texts::kDownload, [&] {
    RequireWriteAccess(session_);
    // Loading gives up what is to be written.
    std::vector<Change> changes = notAccepted_;
    for (Change& change : PendingChanges(session_)) changes.push_back(std::move(change));
    const Loaded loaded = LoadDataSet(session_);
    notAccepted_ = ApplyPending(session_, changes);
    TellLoaded(session_, loaded);
    if (!loaded.IsComplete()) {
      session_.Tell().Problem("incomplete", session_.Say()(Text::IncompleteDataSet));
    } else {
      DownloadAndTell(session_, loaded, changes, notAccepted_);
    }
  });
}

bool DataSetActions::Write() {
  RunAndShow(texts::kWrite, [&] {
    RequireWriteAccess(session_);
    WriteAndTell(session_, notAccepted_);
  });
  return Pending() == 0;
}

}  // namespace hartframe::browse
