// Keys that do not concern a page's items alone: help, messages, language, the other side.

#include "hartframe/browse/BrowseTexts.h"
#include "hartframe/browse/Browser.h"
#include "hartframe/browse/ComparePage.h"
#include "hartframe/browse/PairScreenTexts.h"

namespace hartframe::browse {

namespace {

struct Language {
  const char* code;
  const char* name;
};
constexpr Language kLanguages[] = {{"en", "English"},  {"de", "Deutsch"}, {"fr", "Français"},
                                   {"it", "Italiano"}, {"es", "Español"}, {"kt", "Nihongo"}};

}  // namespace

void Browser::ShowDetails() {
  const Speech& say = online_.Say();
  const Row* row = Pages().Selected();
  std::string text = row ? DetailsOf(FrontSession(), *row) + "\n\n" : std::string();
  text += say(texts::kAllKeys);
  if (pair_) text += say(texts::kPairHelp);
  TextDialog dialog(say, {DialogStyle::Information, say(texts::kHelp), text, {}});
  screen_.Run(dialog);
}

void Browser::ShowLog() {
  const Speech& say = online_.Say();
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
  const Speech& say = online_.Say();
  std::vector<std::string> entries;
  std::size_t selected = 0;
  for (const Language& language : kLanguages) {
    if (language.code == say.Language()) selected = entries.size();
    entries.emplace_back(language.name);
  }
  ChoiceDialog dialog(say, {DialogStyle::Question, say(texts::kLanguage), {}, {}}, entries,
                      selected);
  if (!screen_.Run(dialog)) return;
  for (const auto& side : sides_) side->Data().SetLanguage(kLanguages[dialog.Selected()].code);
}

// Offline there is nobody to ask.
void Browser::ReadAgain() {
  for (const Row& row : Pages().Visible()) {
    if (!row.view.variable || online_.Variable(row.item.definition)->ToBeWritten()) continue;
    online_.Database().SetVariableAvailable(row.item.definition, false);
  }
}

void Browser::GiveUpSelected() {
  const Row* row = Pages().Selected();
  if (!row || !row->view.variable || !row->view.variable->variable->ToBeWritten()) return;
  GiveUpChange(FrontSession(), row->item.definition);
  screen_.Tell(Tone::Plain, online_.Say()(texts::kGivenUp, {row->view.label}));
  OnChanged();
}

// --- both sides ---

void Browser::ToOtherSide() {
  if (!pair_) return screen_.Tell(Tone::Bad, online_.Say()(texts::kNeedsPair));
  front_ = (front_ + 1) % sides_.size();
  OnChanged();
}

void Browser::Compare() {
  if (!pair_) return screen_.Tell(Tone::Bad, online_.Say()(texts::kNeedsPair));
  auto* page = dynamic_cast<ComparePage*>(&Pages().Top());
  if (page) {
    page->SetDifferencesOnly(!page->DifferencesOnly());
  } else {
    auto opened = std::make_unique<ComparePage>(FrontSession(), *pair_);
    page = opened.get();
    Pages().Push(std::move(opened));
  }
  if (screen_.Work([&] { page->ReadDevice(); }))
    screen_.Tell(Tone::Plain, SummaryOf(page->Rows(), online_.Say()));
}

void Browser::ToggleImmediate() {
  if (FrontSession().IsOffline())
    return screen_.Tell(Tone::Bad, online_.Say()(texts::kNeedsOnline));
  if (!MayChange()) return;
  const bool immediate = !WritesAtOnce(online_);
  dynamic_cast<ZAFHartTypes::IDataBaseExtension&>(online_.Database()).SetSynchronousMode(immediate);
  screen_.Tell(Tone::Plain, online_.Say()(immediate ? texts::kImmediateOn : texts::kImmediateOff));
}

}  // namespace hartframe::browse
