// What the keys do on a page.

#include "hartframe/MethodTexts.h"
#include "hartframe/Reading.h"
#include "hartframe/browse/BrowseTexts.h"
#include "hartframe/browse/Browser.h"
#include "hartframe/dataset/KeptDataSet.h"

namespace hartframe::browse {

using ZAFHartTypes::Definition;
using ZAFHartTypes::ObjectKind;

namespace {

struct Language {
  const char* code;
  const char* name;
};
constexpr Language kLanguages[] = {{"en", "English"},  {"de", "Deutsch"}, {"fr", "Français"},
                                   {"it", "Italiano"}, {"es", "Español"}, {"kt", "Nihongo"}};

}  // namespace

void Browser::OnKey(const Key& key) {
  screen_.Redraw();
  if (pages_.OnKey(key)) return;
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
    case KeyCode::Character:
      OnCharacter(key.character);
      break;
    default:
      break;
  }
}

void Browser::OnCharacter(char32_t key) {
  switch (key) {
    case U'w':
      if (MayChange()) actions_.Write();
      break;
    case U'u':
      actions_.Upload();
      break;
    case U'd':
      if (MayChange()) actions_.Download();
      break;
    case U'r':
      ReadAgain();
      break;
    case U'x':
      GiveUpSelected();
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
      break;
  }
  Changed();
}

bool Browser::MayChange() {
  const std::string why = WhyReadOnly();
  if (!why.empty()) screen_.Tell(Tone::Bad, why);
  return why.empty();
}

bool Browser::WorkForUser(const std::function<void()>& operation,
                          const std::function<void()>& onBreak) {
  const bool before = messages_.ErrorsStop();
  messages_.SetErrorsStop(true);
  const bool finished = screen_.Work(operation, onBreak);
  messages_.SetErrorsStop(before);
  Changed();
  return finished;
}

// --- pages and items ---

void Browser::OpenSelected() {
  pages_.Refresh();
  const Row* selected = pages_.Selected();
  if (!selected) return;
  const Row row = *selected;
  if (row.view.kind == ObjectKind::Variable) {
    const std::string why = WhyNotEditable(row, WhyReadOnly(), session_.Say());
    if (why.empty())
      editing_.Edit(pages_.Top(), row);
    else
      screen_.Tell(Tone::Bad, why);
    Changed();
  } else if (row.view.kind == ObjectKind::Method) {
    RunMethod(row);
  } else {
    std::unique_ptr<Page> page;
    WorkForUser([&] { page = pages_.Top().Open(row.item); });
    if (page) pages_.Push(std::move(page));
  }
}

void Browser::RunMethod(const Row& row) {
  if (!MayChange()) return;
  if (!row.view.valid) {
    screen_.Tell(Tone::Bad, session_.Say()(hartframe::texts::kMethodNotValid, {row.view.label}));
    return;
  }
  MethodWatch watch(session_.Components());
  bool isBroken = false;
  session_.Errors().Forget();
  messages_.Forget();
  messages_.SetOnErrorCancelled([&watch] { watch.AbortAll(); });
  const bool finished = WorkForUser(
      [&] {
        ThoroughReader(session_).ReadConditions(row.item.definition);
        pages_.Top().RunMethod(row.item);
      },
      [&] {
        // What cleans up after it still has to reach the device, and the user.
        isBroken = true;
        watch.AbortAll();
        session_.Components().CancelOperation();
      });
  messages_.SetOnErrorCancelled({});
  if (watch.IsAborted()) {
    TellAborted(row, CauseOfAbort(watch, session_.Errors(), isBroken || messages_.WasCancelled()));
  } else if (finished && watch.HasStarted()) {
    screen_.Tell(Tone::Good, session_.Say()(hartframe::texts::kMethodFinished, {row.view.label}));
  }
}

void Browser::TellAborted(const Row& row, AbortCause cause) {
  const Speech& say = session_.Say();
  const std::string& label = row.view.label;
  if (cause == AbortCause::Failure) {
    screen_.Tell(Tone::Bad, say(hartframe::texts::kMethodFailed,
                                {label, OneLine(FailureText(session_.Errors()))}));
  } else {
    screen_.Tell(cause == AbortCause::User ? Tone::Pending : Tone::Bad,
                 say(hartframe::texts::kMethodAborted, {label, say(ReasonText(cause))}));
  }
}

void Browser::ClosePage() {
  if (pages_.Depth() == 1) {
    screen_.Tell(Tone::Plain, session_.Say()(texts::kQuitWithQ));
    return;
  }
  bool complete = true;
  WorkForUser([&] { complete = pages_.Top().Close(); });
  if (!complete) {
    const Speech& say = session_.Say();
    ChoiceDialog dialog(say,
                        {DialogStyle::Question, say(texts::kGroup), say(texts::kGroupQuestion), {}},
                        {say(texts::kStay), say(texts::kGiveUp)}, 0);
    if (!screen_.Run(dialog) || dialog.Selected() == 0) return;
    WorkForUser([&] { pages_.Top().GiveUp(); });
  }
  pages_.Pop();
}

void Browser::Quit() {
  const Speech& say = session_.Say();
  if (actions_.Pending() > 0) {
    const std::string file =
        (session_.Kept() ? session_.Kept()->Path() : session_.Pending().Path()).string();
    ChoiceDialog dialog(
        say,
        {DialogStyle::Question,
         say(texts::kQuit),
         say(texts::kQuitQuestion, {std::to_string(actions_.Pending())}),
         {}},
        {say(texts::kStay), say(texts::kWriteAndQuit),
         file.empty() ? say(texts::kLoseAndQuit) : say(texts::kKeepAndQuit, {file})},
        0);
    if (!screen_.Run(dialog) || dialog.Selected() == 0) return;
    if (dialog.Selected() == 1 && !(MayChange() && actions_.Write())) return;
  }
  isLeaving_ = true;
}

// --- other keys ---

void Browser::ShowDetails() {
  const Speech& say = session_.Say();
  const Row* row = pages_.Selected();
  std::string text = row ? DetailsOf(session_, *row) + "\n\n" : std::string();
  text += say(texts::kAllKeys);
  TextDialog dialog(say, {DialogStyle::Information, say(texts::kHelp), text, {}});
  screen_.Run(dialog);
}

void Browser::ShowLog() {
  const Speech& say = session_.Say();
  std::size_t selected = 0;
  while (true) {
    const auto entries = screen_.Log().Entries();
    std::vector<std::string> lines;
    for (const LogEntry& entry : entries) lines.push_back(entry.line);
    ChoiceDialog list(say,
                      {DialogStyle::Information,
                       say(texts::kMessages),
                       lines.empty() ? say(texts::kNoMessages) : std::string(),
                       {}},
                      lines, selected);
    if (!screen_.Run(list)) return;
    selected = list.Selected();
    TextDialog text(say, {DialogStyle::Information, say(texts::kMessages), entries[selected].text,
                          entries[selected].help});
    screen_.Run(text);
  }
}

void Browser::ChooseLanguage() {
  const Speech& say = session_.Say();
  std::vector<std::string> entries;
  std::size_t selected = 0;
  for (const Language& language : kLanguages) {
    if (language.code == say.Language()) selected = entries.size();
    entries.push_back(language.name);
  }
  ChoiceDialog dialog(say, {DialogStyle::Question, say(texts::kLanguage), {}, {}}, entries,
                      selected);
  if (screen_.Run(dialog)) session_.SetLanguage(kLanguages[dialog.Selected()].code);
}

void Browser::ReadAgain() {
  for (const Row& row : pages_.Visible()) {
    if (row.view.variable && !row.view.variable->variable->ToBeWritten())
      session_.Database().SetVariableAvailable(row.item.definition, false);
  }
}

void Browser::GiveUpSelected() {
  const Row* row = pages_.Selected();
  if (!row || !row->view.variable || !row->view.variable->variable->ToBeWritten()) return;
  GiveUpChange(session_, row->item.definition);
  screen_.Tell(Tone::Plain, session_.Say()(texts::kGivenUp, {row->view.label}));
  Changed();
}

}  // namespace hartframe::browse
