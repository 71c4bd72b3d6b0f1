#pragma once

#include "interfaces/IGuiCtrl.h"
#include "platform/Platform.h"
#include "support/StubGui.h"

namespace test_support {

// A control of its own thread that offers the container interfaces, keeps what it was told and
// answers what it is given. With `fails` set, every call that it records beyond StubGui's raises.
class RecordingControl : public StubGui,
                         public IGuiContainer,
                         public IGuiCont2,
                         public IDDDTMGUIUpdateControl {
 public:
  // --- what it was told ---
  std::vector<std::string> calls;
  std::vector<UserMessage> userMessages;
  std::vector<std::int32_t> hiddenMessages;
  bool lockControls = false;
  bool lockUpdate = false;

  // --- what it answers ---
  DefinitionList refreshData;
  DefinitionList observedData;
  std::uint64_t threadId = platform::ThreadId();
  bool fails = false;

  void ShowObject(const std::shared_ptr<DDObject>& object) override {
    StubGui::ShowObject(object);
    Called("ShowObject " + object->ObjectDefinition().Name());
  }
  void HideObject(const std::shared_ptr<DDObject>& object) override {
    StubGui::HideObject(object);
    Called("HideObject " + object->ObjectDefinition().Name());
  }
  std::int32_t ShowUserMessage(UserMessage& message) override {
    userMessages.push_back(message);
    Called("ShowUserMessage");
    return StubGui::ShowUserMessage(message);
  }
  void HideUserMessage(std::int32_t displayId) override {
    hiddenMessages.push_back(displayId);
    Called("HideUserMessage");
  }
  void LifeSignal(LifeSignalCode code, const SignalObject& object) override {
    StubGui::LifeSignal(code, object);
    Called("LifeSignal");
  }
  void StopCurrentEditing() override {
    StubGui::StopCurrentEditing();
    Called("StopCurrentEditing");
  }
  void SetComponentModel(const std::shared_ptr<IDDComponents>& model) override {
    StubGui::SetComponentModel(model);
    Called("SetComponentModel");
  }
  void SetLanguageID(const std::string& code) override {
    StubGui::SetLanguageID(code);
    Called("SetLanguageID");
  }

  // IGuiContainer
  bool SyncProcessLock() const override { return false; }
  void SetSyncProcessLock(bool) override {}
  std::shared_ptr<IDDComponents> GetComponentModel(bool) override { return components.lock(); }
  bool LockControls() const override { return lockControls; }
  void SetLockControls(bool locked) override {
    lockControls = locked;
    Called("LockControls");
  }
  void RemoveAllMenus() override {}
  void SetExternalHelpFile(const std::string&) override {}
  enumBottomBarStyle BottomBarStyle() const override { return bbsNone; }
  void SetBottomBarStyle(enumBottomBarStyle) override {}

  // IGuiCont2
  std::uint64_t ThreadID() const override { return threadId; }
  std::uintptr_t hAppInstance() const override { return platform::ApplicationInstance(); }
  void CollectRefreshData(DefinitionList& dynData) override {
    Called("CollectRefreshData");
    for (const Definition& definition : refreshData) dynData.Add(definition);
  }
  void CollectObservedData(DefinitionList& obsData) override {
    Called("CollectObservedData");
    for (const Definition& definition : observedData) obsData.Add(definition);
  }

  // IDDDTMGUIUpdateControl
  bool LockUpdate() const override { return lockUpdate; }
  void SetLockUpdate(bool locked) override {
    lockUpdate = locked;
    Called("LockUpdate");
  }
  void RefreshView() override { Called("RefreshView"); }

  std::vector<std::string> TakeCalls() { return std::exchange(calls, {}); }

 private:
  void Called(const std::string& call) {
    calls.push_back(call);
    if (fails) throw Failure(ErrorNumber::TypeMismatch, "Control", "The control is broken.");
  }
};

}  // namespace test_support
