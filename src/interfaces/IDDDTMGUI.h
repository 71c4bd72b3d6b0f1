#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ddobjects/ByteBuffer.h"
#include "ddobjects/Command.h"
#include "ddobjects/Variable.h"
#include "interfaces/Codes.h"
#include "interfaces/IDDDebugTracer.h"
#include "interfaces/IDDErrorHandler.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

class IDDComponents;

// A message to the user, or a request for his input. Texts are multilingual; the GUI manager hands
// them to controls in the user's language, except to the active control.
struct UserMessage {
  // 0 or -1: a new display; otherwise the display to show it in. A control that leaves the message
  // on display puts its id, above 0, here.
  std::int32_t displayId = kNoDisplay;
  MessageIcon icon = MessageIcon::None;
  std::string title;
  std::string prompt;
  std::string help;
  std::int32_t delay = kWaitForUser;  // seconds, or kWaitForUser
  std::shared_ptr<Variable> input;    // variable whose value is asked for; nothing for none
};

// The GUI manager of a DTM instance, and at the same time every control that registers with it.
class ZAF_API IDDDTMGUI {
 public:
  virtual ~IDDDTMGUI() = default;

  // Asked about every error before it is shown; nothing for none. The kernel puts one of its own in
  // its place for a while. Controls need none.
  virtual void SetErrorHandler(std::shared_ptr<IDDErrorHandler> handler) = 0;
  virtual std::shared_ptr<IDDErrorHandler> ErrorHandler() const = 0;
  // To be held weakly; nothing at tear-down. Of the controls, the message control gets it here, and
  // the others by IGuiContainer::SetComponentModel.
  virtual void SetComponentModel(const std::shared_ptr<IDDComponents>& components) = 0;
  virtual std::shared_ptr<IDDComponents> ComponentModel() const = 0;
  // Language code of texts shown to the user: "en", "de", "fr", "it", "es", "kt".
  virtual void SetLanguageID(const std::string& language) = 0;
  virtual std::string LanguageID() const = 0;
  // A new trace object; a control returns nothing.
  virtual std::shared_ptr<IDDDebugTracer> TraceObject() = 0;
  // Show: the object has changed or is to be shown. Hide: it is not valid any more, or its menu has
  // been left. Controls are told about
  // variables and methods only, and once for each state of them, unless the setting
  // FilterDDObjectsForGUI is 0.
  virtual void ShowObject(const std::shared_ptr<DDObject>& object) = 0;
  virtual void HideObject(const std::shared_ptr<DDObject>& object) = 0;
  // Errors, for the GUI manager: see IDDErrorHandler. It does not hand them to controls, but shows
  // them as user messages.
  virtual void ObjectError(const std::shared_ptr<DDObject>& object, ItemIndex index) = 0;
  virtual void ResponseCodeError(const CommandStatus& status,
                                 const std::shared_ptr<CommandRef>& command) = 0;
  virtual void EvaluationError(const std::string& message) = 0;
  // The edited value of a field, Null when the field holds no edit, empty when it is not asked.
  virtual Variant GetObjectValue(const std::shared_ptr<DDObject>& object) = 0;
  // Shows a message and waits as its delay says. The result is 0, kMessageTimedOut or
  // kMessageCancelled. The user's input is set as the value of `message.input`.
  virtual std::int32_t ShowUserMessage(UserMessage& message) = 0;
  // Every control is told: one that does not show that id ignores it.
  virtual void HideUserMessage(std::int32_t displayId) = 0;
  // Work goes on, and a control may draw itself: with each step of a wait (20 ms at most), each 200
  // ms of a background read, and at its end. Controls with IGuiCont2 get signals other than
  // ExchangeFinished every 100 ms at most.
  virtual void LifeSignal(LifeSignalCode code, const SignalObject& object) = 0;
  // Ends the edit of the field that has the user's attention, as if he had left it.
  virtual void StopCurrentEditing() = 0;
  // Keeps the user from starting anything until the id that it answers, above 0, is released; locks
  // add up. Controls are locked by IGuiContainer::SetLockControls instead.
  virtual std::int32_t SetUILock() = 0;
  // Some lock is held.
  virtual bool IsUILocked() const = 0;
  virtual void ReleaseUILock(std::int32_t lockId) = 0;
};

// Whether single objects are shown while much changes at once, as in an upload. Offered by the
// GUI manager and by controls that can wait.
class ZAF_API IDDDTMGUIUpdateControl {
 public:
  virtual ~IDDDTMGUIUpdateControl() = default;
  // While locked, a control need not show single objects.
  virtual bool LockUpdate() const = 0;
  virtual void SetLockUpdate(bool locked) = 0;
  // Shows everything anew; comes after SetLockUpdate(false).
  virtual void RefreshView() = 0;
};

// Offered by controls that print documents of a DTM, and by the GUI manager, which asks them in the
// order of registration.
class ZAF_API IDDPrint {
 public:
  virtual ~IDDPrint() = default;
  // True when the control prints that function's document; nobody else is asked then. The numbers
  // and the result are between host and control: the library only passes them on.
  virtual bool DoPrint(std::int32_t functionId, std::int32_t printType, Variant& printResult) = 0;
};

}  // namespace ZAFHartTypes
