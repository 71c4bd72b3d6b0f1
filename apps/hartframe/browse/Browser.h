#pragma once

#include "hartframe/MethodEnd.h"
#include "hartframe/browse/DataSetActions.h"
#include "hartframe/browse/Editing.h"
#include "hartframe/browse/FrameControl.h"
#include "hartframe/browse/Messages.h"
#include "hartframe/browse/PageStack.h"
#include "hartframe/browse/Screen.h"

namespace hartframe::browse {

// The DTM's menus on a screen. Registers its control with the GUI manager for its lifetime.
class Browser : public Base, public IFrame {
 public:
  Browser(Session& session, Terminal& terminal);
  ~Browser() override;

  // Keys for the screen's terminal.
  Screen& KeyTarget() { return screen_; }
  // Until the user leaves. `pending`: changes of earlier runs.
  ExitCode Run(const std::vector<Change>& pending);
  // Changes of earlier runs that could not be made.
  const std::vector<Change>& NotAccepted() const { return actions_.NotAccepted(); }

  // --- Base ---
  void Draw(Picture& picture) override;
  void OnKey(const Key& key) override;
  void OnIdle() override;
  bool IsLocked() const override { return control_->LockControls(); }

 private:
  // --- IFrame ---
  void OnShown(const std::shared_ptr<ZAFHartTypes::DDObject>& object) override;
  void OnExchange(bool ended) override;
  void OnRefreshView() override { Changed(); }
  ZAFHartTypes::Variant EditedValue(const ZAFHartTypes::Definition& object) override;
  std::int32_t ShowMessage(ZAFHartTypes::UserMessage& message) override;
  void HideMessage(std::int32_t displayId) override { messages_.Hide(displayId); }
  void CollectShown(ZAFHartTypes::DefinitionList& variables) override;
  void OnLocked() override { screen_.Redraw(); }

  // --- keys ---
  void OnCharacter(char32_t key);
  void OpenSelected();
  void RunMethod(const Row& row);
  void TellAborted(const Row& row, AbortCause cause);
  void ClosePage();
  void Quit();
  void ShowDetails();
  void ShowLog();
  void ChooseLanguage();
  void ReadAgain();
  void GiveUpSelected();
  // Work in which errors stop the user.
  bool WorkForUser(const std::function<void()>& operation,
                   const std::function<void()>& onBreak = {});

  // Why nothing can be changed; "" when it can.
  std::string WhyReadOnly();
  // False tells why.
  bool MayChange();
  std::string StatusLine();
  void Changed();

  Session& session_;
  Screen screen_;
  Messages messages_;
  PageStack pages_;
  Editing editing_;
  DataSetActions actions_;
  std::shared_ptr<FrameControl> control_;
  bool isLeaving_ = false;
  bool isStale_ = true;
  std::string pathNote_;
  std::string status_;
};

}  // namespace hartframe::browse
