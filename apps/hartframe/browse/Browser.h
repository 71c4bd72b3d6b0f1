#pragma once

#include "hartframe/browse/DataSetActions.h"
#include "hartframe/browse/Screen.h"
#include "hartframe/browse/Side.h"
#include "hartframe/methods/MethodEnd.h"

namespace hartframe::browse {

// The DTM's menus on a screen: of one data set, or of both sides of a pair, one of which is in
// front.
class Browser : public Base, public ISideOwner {
 public:
  // The data set of the session alone.
  Browser(Session& session, Terminal& terminal);
  // Both sides, the offline one in front.
  Browser(DataSetPair& pair, Terminal& terminal);
  ~Browser() override;

  // Keys for the screen's terminal.
  Screen& KeyTarget() { return screen_; }
  // Until the user leaves. `pending`: changes of earlier runs.
  ExitCode Run(const std::vector<Change>& pending);
  // Changes of earlier runs that could not be made.
  const std::vector<Change>& NotAccepted() const { return actions_->NotAccepted(); }
  // The user has left without keeping anything.
  bool IsAbandoned() const { return actions_->IsAbandoned(); }

  // --- Base ---
  void Draw(Picture& picture) override;
  void OnKey(const Key& key) override;
  void OnIdle() override;
  bool IsLocked() const override;

 private:
  Browser(Session& online, DataSetPair* pair, Terminal& terminal);

  // --- ISideOwner ---
  void OnChanged() override;
  std::vector<Row> Shown() const override { return sides_[front_]->Pages().Visible(); }

  // --- keys ---
  void OnCharacter(char32_t key);
  void OnDataSetKey(char32_t key);
  void OpenSelected();
  void EditSelected(const Row& row);
  void RunMethod(const Row& row);
  void TellEnd(const Row& row, const MethodWatch& watch, bool finished, bool isBroken);
  void TellAborted(const Row& row, AbortCause cause);
  void ClosePage();
  void Quit();
  void ShowDetails();
  void ShowLog();
  void ChooseLanguage();
  void ReadAgain();
  void GiveUpSelected();
  void ToOtherSide();
  void Compare();
  void ToggleImmediate();
  // Work in which errors stop the user.
  bool WorkForUser(const std::function<void()>& operation,
                   const std::function<void()>& onBreak = {});

  Side& Front() { return *sides_[front_]; }
  Session& FrontSession() { return Front().Data(); }
  PageStack& Pages() { return Front().Pages(); }
  // Why nothing can be changed; "" when it can.
  std::string WhyReadOnly();
  // False tells why.
  bool MayChange();
  std::string PathNote();
  std::string StatusLine();

  Session& online_;  // the only one, or that of the device
  DataSetPair* const pair_;
  Screen screen_;
  std::vector<std::unique_ptr<Side>> sides_;
  std::size_t front_ = 0;
  std::unique_ptr<DataSetActions> actions_;
  bool isLeaving_ = false;
  bool isStale_ = true;
  std::string pathNote_;
  std::string status_;
};

}  // namespace hartframe::browse
