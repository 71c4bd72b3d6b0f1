#include "hartframe/browse/DataSetActions.h"

#include "hartframe/browse/BrowseTexts.h"
#include "hartframe/browse/Dialogs.h"
#include "hartframe/browse/PairScreenTexts.h"
#include "hartframe/changes/Transfers.h"
#include "hartframe/dataset/KeptDataSet.h"

namespace hartframe::browse {

bool DataSetActions::Record(const std::function<void()>& operation, std::string& transcript) {
  screen_.Record(&transcript);
  const bool finished = screen_.Work(operation);
  screen_.Record(nullptr);
  return finished;
}

void DataSetActions::ShowTranscript(const char* title, std::string transcript) {
  while (transcript.ends_with('\n')) transcript.pop_back();
  if (transcript.empty()) return;
  TextDialog dialog(session_.Say(),
                    {DialogStyle::Information, session_.Say()(title), transcript, {}});
  screen_.Run(dialog);
}

bool DataSetActions::RunAndShow(const char* title, const std::function<void()>& operation) {
  std::string transcript;
  const bool finished = Record(operation, transcript);
  ShowTranscript(title, transcript);
  return finished;
}

// "No" is selected: one key too many does nothing.
bool DataSetActions::Confirm(const char* title, const std::string& question, const char* yes) {
  const Speech& say = session_.Say();
  ChoiceDialog dialog(say, {DialogStyle::Question, say(title), question, {}},
                      {say(texts::kNo), say(yes)}, 0);
  return screen_.Run(dialog) && dialog.Selected() == 1;
}

bool DataSetActions::ReadFor(const std::vector<Change>& changes) {
  return ReadForChanges(session_, changes) != ExitCode::Interrupted;
}

void DataSetActions::TakeOver(const std::vector<Change>& pending) {
  notAccepted_ = pending;
  if (pending.empty() || session_.Settings().userLevel == ZAFHartTypes::UserLevel::Observer) return;
  RunAndShow(texts::kPendingTitle, [&] {
    if (ReadFor(pending)) notAccepted_ = ApplyPending(session_, pending);
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

void DataSetActions::RefreshOnline() {
  screen_.Tell(Tone::Bad, session_.Say()(texts::kNeedsPair));
}

// --- keeping and leaving ---

std::string DataSetActions::FileName() const {
  return (session_.Kept() ? session_.Kept()->Path() : session_.Pending().Path()).string();
}

bool DataSetActions::Save() {
  const Speech& say = session_.Say();
  const std::string file = FileName();
  if (file.empty()) {
    screen_.Tell(Tone::Bad, say(texts::kNoSaveFile));
    return false;
  }
  return screen_.Work([&] {
    SaveChanges(session_, notAccepted_);
    screen_.Tell(Tone::Good, say(texts::kSavedIn, {file}));
  });
}

DataSetActions::Way DataSetActions::AskWay(std::size_t pending, bool isUnsaved) {
  const Speech& say = session_.Say();
  const std::string file = FileName();
  std::vector<std::string> questions;
  if (isUnsaved) questions.push_back(say(texts::kUnsavedQuestion, {file}));
  if (pending > 0) questions.push_back(say(texts::kQuitQuestion, {std::to_string(pending)}));
  std::string question;
  for (const std::string& line : questions) question += (question.empty() ? "" : "\n") + line;
  std::vector<Way> ways{Way::Stay};
  std::vector<std::string> entries{say(texts::kStay)};
  const auto offer = [&](Way way, const std::string& text) {
    ways.push_back(way);
    entries.push_back(text);
  };
  if (pending > 0)
    offer(Way::Write, say(isUnsaved ? texts::kWriteSaveAndQuit : texts::kWriteAndQuit));
  if (!file.empty())
    offer(Way::Keep, say(isUnsaved ? texts::kSaveAndQuit : texts::kKeepAndQuit, {file}));
  if (file.empty() || isUnsaved)
    offer(Way::Lose, say(file.empty() ? texts::kLoseAndQuit : texts::kQuitUnsaved));
  ChoiceDialog dialog(say, {DialogStyle::Question, say(texts::kQuit), question, {}}, entries, 0);
  return screen_.Run(dialog) ? ways[dialog.Selected()] : Way::Stay;
}

bool DataSetActions::Leave(const std::function<bool()>& mayWrite) {
  const std::size_t pending = Pending();
  const bool isUnsaved = IsUnsaved();
  switch (pending > 0 || isUnsaved ? AskWay(pending, isUnsaved) : Way::Keep) {
    case Way::Write:
      return mayWrite() && WriteAll() && KeepAndLeave();
    case Way::Keep:
      return KeepAndLeave();
    case Way::Lose:
      return Abandon();
    case Way::Stay:
      break;
  }
  return false;
}

// What cannot be kept is lost only when the user says so.
bool DataSetActions::KeepAndLeave() {
  if (FileName().empty() || Save()) return true;
  const LogEntry* reason = screen_.Log().Shown();
  const Speech& say = session_.Say();
  ChoiceDialog dialog(
      say, {DialogStyle::Error, say(texts::kQuit), reason ? reason->text : std::string(), {}},
      {say(texts::kStay), say(texts::kQuitUnsaved)}, 0);
  return screen_.Run(dialog) && dialog.Selected() == 1 && Abandon();
}

bool DataSetActions::Abandon() {
  if (session_.Kept()) session_.Kept()->Abandon();
  isAbandoned_ = true;
  return true;
}

}  // namespace hartframe::browse
