#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ddobjects/DefinitionList.h"
#include "platform/Export.h"
#include "types/Variant.h"

namespace ZAFHartTypes {

class IDDComponents;

// What a control can do with the whole data set, as a bit set.
enum enumGuiActions : std::int32_t {
  gatUpload = 1,
  gatDownload = 2,
  gatUD = 3,
  gatWriteIncremental = 4,
  gatUW = 5,
  gatDW = 6,
  gatUDW = 7,
};

enum enumBottomBarStyle : std::int32_t { bbsNone = 0, bbsSmall = 1, bbsBig = 2 };

// A control that shows a part of a DTM. Implemented by the DTM's controls.
class ZAF_API IGuiCtrl {
 public:
  virtual ~IGuiCtrl() = default;
  virtual void SetStartMenu(const Variant& menu) = 0;
  virtual std::string Title() const = 0;
  virtual void SetTitle(const std::string& title) = 0;
  virtual bool Enabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
  // Appends the live variables that the control shows.
  virtual void CollectRefreshData(DefinitionList& dynData) = 0;
  virtual bool QueryClose() const = 0;
  virtual bool IsOnline() const = 0;
  virtual void SetIsOnline(bool online) = 0;
  virtual enumGuiActions ActionType() const = 0;
  virtual void SetActionType(enumGuiActions action) = 0;
  virtual void RefreshAllData() = 0;
  virtual bool SynchronousMode() const = 0;
  virtual void SetSynchronousMode(bool synchronous) = 0;
};

class ZAF_API IGuiCtrl2 {
 public:
  virtual ~IGuiCtrl2() = default;
  virtual void CollectObservedData(DefinitionList& obsData) = 0;
};

// A window that holds controls.
class ZAF_API IGuiContainer {
 public:
  virtual ~IGuiContainer() = default;
  virtual bool SyncProcessLock() const = 0;
  virtual void SetSyncProcessLock(bool locked) = 0;
  // Takes the component model on, or lets go of it when it is nothing.
  virtual void SetComponentModel(const std::shared_ptr<IDDComponents>& components) = 0;
  virtual std::shared_ptr<IDDComponents> GetComponentModel(bool synchronous) = 0;
  // The user is kept from starting anything while it is locked.
  virtual bool LockControls() const = 0;
  virtual void SetLockControls(bool locked) = 0;
  virtual void RemoveAllMenus() = 0;
  virtual void SetExternalHelpFile(const std::string& file) = 0;
  virtual enumBottomBarStyle BottomBarStyle() const = 0;
  virtual void SetBottomBarStyle(enumBottomBarStyle style) = 0;
};

// A container that may live in another thread or process.
class ZAF_API IGuiCont2 {
 public:
  virtual ~IGuiCont2() = default;
  virtual std::uint64_t ThreadID() const = 0;
  virtual std::uintptr_t hAppInstance() const = 0;
  // Each fills the list with the live, or the observed, variables that it shows.
  virtual void CollectRefreshData(DefinitionList& dynData) = 0;
  virtual void CollectObservedData(DefinitionList& obsData) = 0;
};

// Implemented by the GUI manager.
class ZAF_API IGuiManager {
 public:
  virtual ~IGuiManager() = default;
  // What the controls observe has changed.
  virtual void ObservedDataChangeEvent() = 0;
};

}  // namespace ZAFHartTypes
