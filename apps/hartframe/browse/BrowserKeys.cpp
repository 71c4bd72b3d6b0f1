// What the keys do on a page.

#include "hartframe/browse/BrowseTexts.h"
#include "hartframe/browse/Browser.h"
#include "hartframe/browse/PairScreenTexts.h"
#include "hartframe/methods/MethodTexts.h"
#include "hartframe/values/Reading.h"

namespace hartframe::browse {

using ZAFHartTypes::ObjectKind;

void Browser::OnKey(const Key& key) {
  screen_.Redraw();
  if (Pages().OnKey(key)) return;
  switch (key.code) {
    case KeyCode::Enter:
    case KeyCode::Right:
      OpenSelected();
      break;
    case KeyCode::Escape:
    case KeyCode::Left:
    case KeyCode::Backspace:
      ClosePage();
      break;
    case KeyCode::Help:
      ShowDetails();
      break;
    case KeyCode::Delete:
      GiveUpSelected();
      break;
    case KeyCode::Tab:
      ToOtherSide();
      break;
    case KeyCode::Character:
      OnCharacter(key.character);
      break;
    default:
      break;
  }
}

void Browser::OnCharacter(char32_t key) {
  switch (key) {
    case U'c':
      Compare();
      break;
    case U'r':
      ReadAgain();
      break;
    case U'x':
      GiveUpSelected();
      break;
    case U'i':
      ToggleImmediate();
      break;
    case U'l':
      ChooseLanguage();
      break;
    case U'm':
      ShowLog();
      break;
    case U'?':
      ShowDetails();
      break;
    case U'q':
      Quit();
      break;
    default:
      OnDataSetKey(key);
      break;
  }
  OnChanged();
}

// The offline side's changes reach the device with a download.
void Browser::OnDataSetKey(char32_t key) {
  switch (key) {
    case U'w':
      if (!MayChange()) break;
      if (FrontSession().IsOffline())
        actions_->Download();
      else
        actions_->Write();
      break;
    case U'u':
      actions_->Upload();
      break;
    case U'd':
      if (MayChange()) actions_->Download();
      break;
    case U'R':
      actions_->RefreshOnline();
      break;
    case U's':
      actions_->Save();
      break;
    default:
      break;
  }
}

bool Browser::MayChange() {
  const std::string why = WhyReadOnly();
  if (!why.empty()) screen_.Tell(Tone::Bad, why);
  return why.empty();
}

bool Browser::WorkForUser(const std::function<void()>& operation,
                          const std::function<void()>& onBreak) {
  Messages& messages = Front().Talk();
  const bool before = messages.ErrorsStop();
  messages.SetErrorsStop(true);
  const bool finished = screen_.Work(operation, onBreak);
  messages.SetErrorsStop(before);
  OnChanged();
  return finished;
}

// --- pages and items ---

void Browser::OpenSelected() {
  Pages().Refresh();
  const Row* selected = Pages().Selected();
  if (!selected) return;
  const Row row = *selected;
  if (row.view.kind == ObjectKind::Variable) {
    EditSelected(row);
  } else if (row.view.kind == ObjectKind::Method) {
    RunMethod(row);
  } else {
    std::unique_ptr<Page> page;
    WorkForUser([&] { page = Pages().Top().Open(row.item); });
    if (page) Pages().Push(std::move(page));
  }
}

void Browser::EditSelected(const Row& row) {
  const std::string why = WhyNotEditable(row, WhyReadOnly(), FrontSession().Say());
  if (why.empty())
    Front().Edits().Edit(Pages().Top(), row);
  else
    screen_.Tell(Tone::Bad, why);
  OnChanged();
}

void Browser::RunMethod(const Row& row) {
  Session& session = FrontSession();
  if (!MayChange()) return;
  if (session.IsOffline())
    return screen_.Tell(Tone::Bad, session.Say()(texts::kMethodOffline, {row.view.label}));
  if (!row.view.valid) {
    screen_.Tell(Tone::Bad, session.Say()(hartframe::texts::kMethodNotValid, {row.view.label}));
    return;
  }
  Messages& messages = Front().Talk();
  MethodWatch watch(session.Components());
  bool isBroken = false;
  session.Errors().Forget();
  messages.Forget();
  messages.SetOnErrorCancelled([&watch] { watch.AbortAll(); });
  screen_.SetKeepsUp(true);
  const bool finished = WorkForUser(
      [&] {
        ThoroughReader(session).ReadConditions(row.item.definition);
        Pages().Top().RunMethod(row.item);
      },
      [&] {
        // What cleans up after it still has to reach the device, and the user.
        isBroken = true;
        watch.AbortAll();
        session.Components().CancelOperation();
      });
  screen_.SetKeepsUp(false);
  messages.SetOnErrorCancelled({});
  TellEnd(row, watch, finished, isBroken);
}

void Browser::TellEnd(const Row& row, const MethodWatch& watch, bool finished, bool isBroken) {
  Session& session = FrontSession();
  if (watch.IsAborted()) {
    const bool byUser = isBroken || Front().Talk().WasCancelled();
    TellAborted(row, CauseOfAbort(watch, session.Errors(), byUser));
  } else if (finished && watch.HasStarted()) {
    screen_.Tell(Tone::Good, session.Say()(hartframe::texts::kMethodFinished, {row.view.label}));
  }
}

void Browser::TellAborted(const Row& row, AbortCause cause) {
  Session& session = FrontSession();
  const Speech& say = session.Say();
  const std::string& label = row.view.label;
  if (cause == AbortCause::Failure) {
    screen_.Tell(Tone::Bad, say(hartframe::texts::kMethodFailed,
                                {label, OneLine(FailureText(session.Errors()))}));
  } else {
    screen_.Tell(cause == AbortCause::User ? Tone::Pending : Tone::Bad,
                 say(hartframe::texts::kMethodAborted, {label, say(ReasonText(cause))}));
  }
}

void Browser::ClosePage() {
  if (Pages().Depth() == 1) {
    screen_.Tell(Tone::Plain, online_.Say()(texts::kQuitWithQ));
    return;
  }
  bool complete = true;
  WorkForUser([&] { complete = Pages().Top().Close(); });
  if (!complete) {
    const Speech& say = online_.Say();
    ChoiceDialog dialog(say,
                        {DialogStyle::Question, say(texts::kGroup), say(texts::kGroupQuestion), {}},
                        {say(texts::kStay), say(texts::kGiveUp)}, 0);
    if (!screen_.Run(dialog) || dialog.Selected() == 0) return;
    WorkForUser([&] { Pages().Top().GiveUp(); });
  }
  Pages().Pop();
}

void Browser::Quit() {
  isLeaving_ = actions_->Leave([this] { return MayChange(); });
}

}  // namespace hartframe::browse
