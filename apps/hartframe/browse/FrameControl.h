#pragma once

#include "interfaces/ControlBase.h"
#include "interfaces/IGuiCtrl.h"

namespace hartframe::browse {

// What the control asks of the frame that it belongs to.
class IFrame {
 public:
  virtual ~IFrame() = default;
  // The object has another state than the one shown before.
  virtual void OnShown(const std::shared_ptr<ZAFHartTypes::DDObject>& object) = 0;
  // An exchange with the device goes on, or an asynchronous one has ended.
  virtual void OnExchange(bool ended) = 0;
  // The whole view is to be brought up to date.
  virtual void OnRefreshView() = 0;
  // What the user has typed into the object's field: Null for nothing.
  virtual ZAFHartTypes::Variant EditedValue(const ZAFHartTypes::Definition& object) = 0;
  virtual std::int32_t ShowMessage(ZAFHartTypes::UserMessage& message) = 0;
  virtual void HideMessage(std::int32_t displayId) = 0;
  // The variables on the screen that are to be read.
  virtual void CollectShown(ZAFHartTypes::DefinitionList& variables) = 0;
  virtual void OnLocked() = 0;
};

// The frame's one control, with every interface that the GUI manager looks for. Outlives the frame
// when the GUI manager still holds it, and shows nothing from then on.
class FrameControl : public ZAFHartTypes::ControlBase,
                     public ZAFHartTypes::IGuiContainer,
                     public ZAFHartTypes::IGuiCont2,
                     public ZAFHartTypes::IGuiCtrl,
                     public ZAFHartTypes::IDDDTMGUIUpdateControl {
 public:
  explicit FrameControl(IFrame& frame) : frame_(&frame) {}
  void Detach() { frame_ = nullptr; }

  // --- IDDDTMGUI ---
  void SetComponentModel(const std::shared_ptr<ZAFHartTypes::IDDComponents>& components) override {
    ControlBase::SetComponentModel(components);
  }
  void ShowObject(const std::shared_ptr<ZAFHartTypes::DDObject>& object) override;
  void HideObject(const std::shared_ptr<ZAFHartTypes::DDObject>& object) override;
  ZAFHartTypes::Variant GetObjectValue(
      const std::shared_ptr<ZAFHartTypes::DDObject>& object) override;
  std::int32_t ShowUserMessage(ZAFHartTypes::UserMessage& message) override;
  void HideUserMessage(std::int32_t displayId) override;
  void LifeSignal(ZAFHartTypes::LifeSignalCode code,
                  const ZAFHartTypes::SignalObject& object) override;

  // --- IGuiContainer ---
  bool SyncProcessLock() const override { return syncProcessLock_; }
  void SetSyncProcessLock(bool locked) override { syncProcessLock_ = locked; }
  std::shared_ptr<ZAFHartTypes::IDDComponents> GetComponentModel(bool) override {
    return ComponentModel();
  }
  bool LockControls() const override { return locked_; }
  void SetLockControls(bool locked) override;
  void RemoveAllMenus() override {}
  void SetExternalHelpFile(const std::string&) override {}
  ZAFHartTypes::enumBottomBarStyle BottomBarStyle() const override { return barStyle_; }
  void SetBottomBarStyle(ZAFHartTypes::enumBottomBarStyle style) override { barStyle_ = style; }

  // --- IGuiCont2 ---
  std::uint64_t ThreadID() const override;
  std::uintptr_t hAppInstance() const override;
  void CollectRefreshData(ZAFHartTypes::DefinitionList& dynData) override;
  void CollectObservedData(ZAFHartTypes::DefinitionList&) override {}

  // --- IGuiCtrl ---
  void SetStartMenu(const ZAFHartTypes::Variant&) override {}
  std::string Title() const override { return title_; }
  void SetTitle(const std::string& title) override { title_ = title; }
  bool Enabled() const override { return !locked_; }
  void SetEnabled(bool enabled) override { SetLockControls(!enabled); }
  bool QueryClose() const override { return !locked_; }
  bool IsOnline() const override { return online_; }
  void SetIsOnline(bool online) override { online_ = online; }
  ZAFHartTypes::enumGuiActions ActionType() const override { return actions_; }
  void SetActionType(ZAFHartTypes::enumGuiActions actions) override { actions_ = actions; }
  void RefreshAllData() override { RefreshView(); }
  bool SynchronousMode() const override { return synchronous_; }
  void SetSynchronousMode(bool synchronous) override { synchronous_ = synchronous; }

  // --- IDDDTMGUIUpdateControl ---
  bool LockUpdate() const override { return updateLocked_; }
  void SetLockUpdate(bool locked) override { updateLocked_ = locked; }
  void RefreshView() override;

 private:
  IFrame* frame_;
  bool locked_ = false;
  bool updateLocked_ = false;
  bool syncProcessLock_ = false;
  bool synchronous_ = false;
  bool online_ = true;
  std::string title_;
  ZAFHartTypes::enumGuiActions actions_ = ZAFHartTypes::gatUDW;
  ZAFHartTypes::enumBottomBarStyle barStyle_ = ZAFHartTypes::bbsSmall;
};

}  // namespace hartframe::browse
