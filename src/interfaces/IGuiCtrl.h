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

// How much of a bar with buttons a container shows below its controls.
enum enumBottomBarStyle : std::int32_t { bbsNone = 0, bbsSmall = 1, bbsBig = 2 };

// A control that shows a part of a DTM. Implemented by the DTM's controls for the frame that holds
// them; what the values mean to the user is between these two. The library itself calls only
// RefreshAllData, of a control that does not offer IDDDTMGUIUpdateControl.
class ZAF_API IGuiCtrl {
 public:
  virtual ~IGuiCtrl() = default;
  // The menu to show first, by name or as the control takes it.
  virtual void SetStartMenu(const Variant& menu) = 0;
  virtual std::string Title() const = 0;
  virtual void SetTitle(const std::string& title) = 0;
  virtual bool Enabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
  // Appends the live variables that the control shows.
  virtual void CollectRefreshData(DefinitionList& dynData) = 0;
  // Whether the control may be closed now.
  virtual bool QueryClose() const = 0;
  virtual bool IsOnline() const = 0;
  virtual void SetIsOnline(bool online) = 0;
  // What the control offers to do with the whole data set.
  virtual enumGuiActions ActionType() const = 0;
  virtual void SetActionType(enumGuiActions action) = 0;
  // Shows everything anew.
  virtual void RefreshAllData() = 0;
  // Edits go to the device at once, as IDataBaseExtension::SynchronousMode of the data set.
  virtual bool SynchronousMode() const = 0;
  virtual void SetSynchronousMode(bool synchronous) = 0;
};

// A control that also observes variables; for its frame, as IGuiCtrl.
class ZAF_API IGuiCtrl2 {
 public:
  virtual ~IGuiCtrl2() = default;
  // Appends the observed variables: they are to be kept current as well.
  virtual void CollectObservedData(DefinitionList& obsData) = 0;
};

// A window that holds controls. The library calls SetComponentModel and SetLockControls; the other
// operations are for hosts.
class ZAF_API IGuiContainer {
 public:
  virtual ~IGuiContainer() = default;
  virtual bool SyncProcessLock() const = 0;
  virtual void SetSyncProcessLock(bool locked) = 0;
  // Takes the component model on, or lets go of it when it is nothing.
  virtual void SetComponentModel(const std::shared_ptr<IDDComponents>& components) = 0;
  // Nothing when it has none.
  virtual std::shared_ptr<IDDComponents> GetComponentModel(bool synchronous) = 0;
  // The user is kept from starting anything while it is locked; also when a DTM instance in the
  // same thread is at work.
  virtual bool LockControls() const = 0;
  virtual void SetLockControls(bool locked) = 0;
  virtual void RemoveAllMenus() = 0;
  virtual void SetExternalHelpFile(const std::string& file) = 0;
  virtual enumBottomBarStyle BottomBarStyle() const = 0;
  virtual void SetBottomBarStyle(enumBottomBarStyle style) = 0;
};

// A container that may live in another thread or process. Only variables of controls that offer
// this are refreshed in the background.
class ZAF_API IGuiCont2 {
 public:
  virtual ~IGuiCont2() = default;
  // platform::ThreadId() and platform::ApplicationInstance() of the container. Where they differ
  // from the library's, its definitions are copied.
  virtual std::uint64_t ThreadID() const = 0;
  virtual std::uintptr_t hAppInstance() const = 0;
  // Each fills the list, empty before, with the live variables that it shows, or with the observed
  // ones. Those that are not available any more are read, one after the other, the one read longest
  // ago first. CollectRefreshData is asked once per second at most, CollectObservedData at each
  // IGuiManager::ObservedDataChangeEvent; what they raise is ignored.
  virtual void CollectRefreshData(DefinitionList& dynData) = 0;
  virtual void CollectObservedData(DefinitionList& obsData) = 0;
};

// Implemented by the GUI manager.
class ZAF_API IGuiManager {
 public:
  virtual ~IGuiManager() = default;
  // What the controls observe has changed: asks each anew (IGuiCont2::CollectObservedData).
  virtual void ObservedDataChangeEvent() = 0;
};

}  // namespace ZAFHartTypes
