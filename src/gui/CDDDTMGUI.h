#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "gui/CLockObject.h"
#include "gui/ControlList.h"
#include "gui/DynamicRefresh.h"
#include "gui/ErrorTexts.h"
#include "gui/GuiSettings.h"
#include "gui/ThreadGuis.h"
#include "interfaces/ComponentBase.h"
#include "interfaces/IDDDTMGUI.h"
#include "interfaces/IGuiCtrl.h"
#include "platform/Export.h"
#include "platform/Object.h"
#include "trace/CExternalTraceConnection.h"
#include "trace/StackInformation.h"

namespace ZAFHartLib {

// The one GUI manager of a DTM instance. Everything that wants to show something goes through it:
// it fans out to the registered controls, keeps the UI lock, refreshes live variables in the
// background, and routes errors to the error handler, the external tracer and the user.
//
// Registered controls, ActiveControl and MessageControl are held until they are unregistered or
// replaced. Failures of controls are traced when the setting UseErrorHandler is on (from the first
// component model on it is, unless the registry says no) and reach the caller otherwise. Held by
// std::shared_ptr; all calls come from the thread that made it.
class ZAF_API CDDDTMGUI : public platform::Object,
                          public ZAFHartTypes::IDDDTMGUI,
                          public ZAFHartTypes::IDDDTMGUIUpdateControl,
                          public ZAFHartTypes::IDDPrint,
                          public ZAFHartTypes::IGuiManager,
                          public IStackInformationOwner,
                          public std::enable_shared_from_this<CDDDTMGUI> {
 public:
  using Control = std::shared_ptr<ZAFHartTypes::IDDDTMGUI>;
  using Object = std::shared_ptr<ZAFHartTypes::DDObject>;

  CDDDTMGUI();
  ~CDDDTMGUI() override;

  // Registers a control at the end of the list; a control is listed once. It is told the language,
  // and that the UI is locked when it is; not the component model, which the host gives it after
  // Initialize. Failures are ignored.
  void RegisterCtrl(const Control& nobj);
  // Lets go of the control, also as ActiveControl and MessageControl. Failures are ignored.
  void UnregisterCtrl(const Control& nobj);

  // The control that has the user's attention: asked for edited values and, without a message
  // control, for messages. Not registered by this.
  const Control& ActiveControl() const { return activeControl_; }
  void SetActiveControl(Control control) { activeControl_ = std::move(control); }
  // The control that shows user messages; gets the component model, and the language when that is
  // set next. Need not be registered.
  const Control& MessageControl() const { return messageControl_; }
  void SetMessageControl(Control control);
  // The connection to the tracer that the registry names; nothing after SetExternalTracer(nullptr):
  // errors are not traced then.
  const std::shared_ptr<CExternalTraceConnection>& ExternalTracer() const { return tracer_; }
  void SetExternalTracer(std::shared_ptr<CExternalTraceConnection> tracer);
  // The DD call stack; nothing is replaced by a new one.
  std::shared_ptr<ZAFHartLib::StackInformation> StackInformation() const override { return stack_; }
  void SetStackInformation(std::shared_ptr<ZAFHartLib::StackInformation> stack);
  // For the host; no effect here.
  bool InplaceAcknowledge() const { return inplaceAcknowledge_; }
  void SetInplaceAcknowledge(bool inplace) { inplaceAcknowledge_ = inplace; }

  // --- IDDDTMGUI ---
  // Held until it is replaced, or the component model is set.
  void SetErrorHandler(std::shared_ptr<ZAFHartTypes::IDDErrorHandler> handler) override;
  std::shared_ptr<ZAFHartTypes::IDDErrorHandler> ErrorHandler() const override;
  // Clears the error handler. A component model: reads the settings, hands it to the controls that
  // are containers and starts the refresh. Nothing: hands that on and stops.
  void SetComponentModel(const std::shared_ptr<ZAFHartTypes::IDDComponents>& components) override;
  std::shared_ptr<ZAFHartTypes::IDDComponents> ComponentModel() const override;
  // "en" at first. Told to all controls; what they show already is theirs to translate.
  void SetLanguageID(const std::string& language) override;
  std::string LanguageID() const override { return language_; }
  // Never nothing.
  std::shared_ptr<ZAFHartTypes::IDDDebugTracer> TraceObject() override;
  // While the update is locked and the setting EnableHostVariableFilter is 1, only internal items
  // are passed on. Without an object does nothing.
  void ShowObject(const Object& object) override;
  void HideObject(const Object& object) override;
  // Records the error on its variable, where the first one stands, handled or not; ReadNotValid
  // clears the record. Shows nothing for CannotRead, ReadNotValid, WriteNotValid and
  // MethodNotValid. Raises Unexpected for a cyclic evaluation that the error handler did not
  // handle, InvalidArgument without an object.
  void ObjectError(const Object& object, ZAFHartTypes::ItemIndex index) override;
  // A code is shown with the DD's text, else the standard one, a warning as information, one of
  // type success not at all. When no error handler handles it, IDDCommWrapper::LastResult becomes
  // the user's answer, 0 when nothing was shown. InvalidArgument when a code other than 0 comes
  // without its command.
  void ResponseCodeError(const ZAFHartTypes::CommandStatus& status,
                         const std::shared_ptr<ZAFHartTypes::CommandRef>& command) override;
  void EvaluationError(const std::string& message) override;
  // The answer of the active control, else the first one of the registered controls that is not
  // empty, else the variable's value.
  ZAFHartTypes::Variant GetObjectValue(const Object& object) override;
  // Shown by the MessageControl, else the ActiveControl (with the texts as they are), else every
  // registered control. Texts are translated. Failures give 0.
  std::int32_t ShowUserMessage(ZAFHartTypes::UserMessage& message) override;
  // The message control is left out for kNoDisplay.
  void HideUserMessage(std::int32_t displayId) override;
  void LifeSignal(ZAFHartTypes::LifeSignalCode code,
                  const ZAFHartTypes::SignalObject& object) override;
  // Reaches the controls of all GUI managers of the thread.
  void StopCurrentEditing() override;
  // Locks the controls of all GUI managers of the thread and stops the refresh. The result is the
  // id, from 1, to release the lock with.
  std::int32_t SetUILock() override;
  bool IsUILocked() const override { return !locks_.empty(); }
  // An id that is not held is ignored.
  void ReleaseUILock(std::int32_t lockId) override;

  // --- IDDDTMGUIUpdateControl, IDDPrint, IGuiManager ---
  bool LockUpdate() const override { return lockUpdate_; }
  void SetLockUpdate(bool locked) override;
  void RefreshView() override;
  // False when no control prints it.
  bool DoPrint(std::int32_t functionId, std::int32_t printType,
               ZAFHartTypes::Variant& printResult) override;
  void ObservedDataChangeEvent() override;

  // For the refresh: writes the failure of one of its steps to the external tracer.
  void TraceFailure(const std::string& heading, const platform::Failure& failure);

 private:
  using Notify = void (ZAFHartTypes::IDDDTMGUI::*)(const Object&);
  using UserMessage = ZAFHartTypes::UserMessage;

  void HandOnComponentModel(const std::shared_ptr<ZAFHartTypes::IDDComponents>& components);
  void FanOut(std::string_view operation, const Object& object, Notify notify);
  void LockControls(std::string_view operation, bool locked);
  void LockOthers(std::int32_t lockId);

  // Nothing before Initialize and after tear-down.
  std::shared_ptr<ZAFHartTypes::IDDWorkerDB> Database() const;
  UserMessage Translated(const UserMessage& message) const;
  std::int32_t AskAllForMessage(UserMessage& message);

  // --- errors ---
  bool IsTraced() const { return tracer_ && tracer_->CheckConnection(); }
  // Asks the error handler with `ask`; one that fails has not handled the error. Texts are built
  // only when the error is shown or traced.
  template <typename Ask>
  bool IsHandled(Ask&& ask);
  std::string StackText() const;
  // Level for the Describe of what an error is about.
  std::int16_t InfoLevel() const;
  ErrorTexts Texts() const { return {language_, settings_.showDDInformation}; }
  void RecordError(ZAFHartTypes::Variable& variable, ZAFHartTypes::ItemIndex index);
  void SettleVariable(ZAFHartTypes::Variable& variable, ZAFHartTypes::ItemIndex index);
  void ReportToUser(ZAFHartTypes::ItemIndex index, const std::string& text,
                    const std::string& stackText);
  std::int32_t ReportResponse(const ErrorReport& report, const ZAFHartTypes::CommandRef& command,
                              bool handled);
  void SetLastResult(std::int32_t result);
  // Shows the message and waits for the user; answers his result.
  std::int32_t ShowError(std::string title, std::string prompt, std::string help,
                         ZAFHartTypes::MessageIcon icon = ZAFHartTypes::MessageIcon::Critical);

  ZAFHartTypes::ModelReference model_;
  std::shared_ptr<ZAFHartTypes::IDDErrorHandler> errorHandler_;
  std::shared_ptr<ZAFHartLib::StackInformation> stack_;
  std::shared_ptr<CExternalTraceConnection> tracer_;
  ControlList controls_;
  Control activeControl_;
  Control messageControl_;
  DynamicRefresh refresh_;
  std::shared_ptr<ThreadGuis> threadGuis_;
  // For each UI lock the locks of the other GUI managers that go with it.
  std::map<std::int32_t, std::vector<std::shared_ptr<CLockObject>>> locks_;
  GuiSettings settings_;
  std::string language_ = "en";
  bool inplaceAcknowledge_ = false;
  bool lockUpdate_ = false;
};

}  // namespace ZAFHartLib
