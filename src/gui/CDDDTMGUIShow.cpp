// What the GUI manager shows: objects, user messages, whole views and prints.

#include "gui/CDDDTMGUI.h"
#include "interfaces/InternalNames.h"
#include "text/LangText.h"

namespace ZAFHartLib {

using ZAFHartTypes::CommandRef;
using ZAFHartTypes::Failure;
using ZAFHartTypes::IDDDTMGUI;
using ZAFHartTypes::IDDDTMGUIUpdateControl;
using ZAFHartTypes::IDDPrint;
using ZAFHartTypes::IgnoreFailures;
using ZAFHartTypes::IGuiCtrl;
using ZAFHartTypes::LifeSignalCode;
using ZAFHartTypes::SignalObject;
using ZAFHartTypes::Variant;

// --- objects ---

void CDDDTMGUI::FanOut(std::string_view operation, const Object& object, Notify notify) {
  if (!object) return;
  if (settings_.enableHostVariableFilter && lockUpdate_ &&
      !object->ObjectDefinition().Name().starts_with(ZAFHartTypes::internal_names::kPrefix)) {
    return;
  }
  controls_.ForEach(operation, [&](CGUIObj& entry, IDDDTMGUI& control) {
    if (settings_.filterDDObjectsForGUI && !entry.IsNewObject(object)) return;
    (control.*notify)(object);
  });
}

void CDDDTMGUI::ShowObject(const Object& object) {
  FanOut("IDDDTMGUI_ShowObject", object, &IDDDTMGUI::ShowObject);
}

void CDDDTMGUI::HideObject(const Object& object) {
  FanOut("IDDDTMGUI_HideObject", object, &IDDDTMGUI::HideObject);
}

Variant CDDDTMGUI::GetObjectValue(const Object& object) {
  constexpr std::string_view kOperation = "IDDDTMGUI_GetObjectValue";
  Variant value;
  if (const Control control = activeControl_) {
    controls_.Call(kOperation, [&] { value = control->GetObjectValue(object); });
    return value;
  }
  controls_.ForEach(kOperation, [&](CGUIObj&, IDDDTMGUI& control) {
    value = control.GetObjectValue(object);
    return !value.IsEmpty();
  });
  const auto variable = object ? object->MakeVariable() : nullptr;
  return value.IsEmpty() && variable ? variable->Value() : value;
}

void CDDDTMGUI::StopCurrentEditing() {
  threadGuis_->ForOthers(*this,
                         [](const std::shared_ptr<CDDDTMGUI>& gui) { gui->StopCurrentEditing(); });
  controls_.ForEach("IDDDTMGUI_StopCurrentEditing",
                    [](CGUIObj&, IDDDTMGUI& control) { control.StopCurrentEditing(); });
}

void CDDDTMGUI::LifeSignal(LifeSignalCode code, const SignalObject& object) {
  controls_.ForEach("IDDDTMGUI_LifeSignal",
                    [&](CGUIObj& entry, IDDDTMGUI&) { entry.LifeSignal(code, object); });
  if (code != LifeSignalCode::ExchangeFinished) return;
  if (const auto* reference = std::get_if<std::shared_ptr<CommandRef>>(&object)) {
    refresh_.OnExchangeFinished(*reference);
  }
}

// --- user messages ---

CDDDTMGUI::UserMessage CDDDTMGUI::Translated(const UserMessage& message) const {
  UserMessage translated = message;
  for (std::string* text : {&translated.title, &translated.prompt, &translated.help}) {
    *text = LangText(*text, language_);
  }
  return translated;
}

std::int32_t CDDDTMGUI::ShowUserMessage(UserMessage& message) {
  std::int32_t result = 0;
  const auto ask = [&](const Control& control, UserMessage& shown) {
    result =
        platform::CallForeign("ShowUserMessage", [&] { return control->ShowUserMessage(shown); });
  };
  IgnoreFailures([&] {
    const Control messageControl = messageControl_;
    const Control activeControl = activeControl_;
    if (activeControl && !messageControl) {
      ask(activeControl, message);
      return;
    }
    UserMessage translated = Translated(message);
    if (messageControl) {
      ask(messageControl, translated);
    } else {
      result = AskAllForMessage(translated);
    }
    message.displayId = translated.displayId;
  });
  return result;
}

// The result of the control that showed it: those that do not show messages answer 0 and leave the
// display as it is.
std::int32_t CDDDTMGUI::AskAllForMessage(UserMessage& message) {
  const UserMessage asked = message;
  std::int32_t result = 0;
  controls_.ForEach("IDDDTMGUI_ShowUserMessage", [&](CGUIObj&, IDDDTMGUI& control) {
    UserMessage shown = asked;
    const std::int32_t answer = control.ShowUserMessage(shown);
    if (answer != 0) result = answer;
    if (shown.displayId > 0) message.displayId = shown.displayId;
  });
  return result;
}

void CDDDTMGUI::HideUserMessage(std::int32_t displayId) {
  constexpr std::string_view kOperation = "IDDDTMGUI_HideUserMessage";
  const Control messageControl = messageControl_;
  if (messageControl && displayId != ZAFHartTypes::kNoDisplay) {
    controls_.Call(kOperation, [&] { messageControl->HideUserMessage(displayId); });
  }
  controls_.ForEach(kOperation,
                    [&](CGUIObj&, IDDDTMGUI& control) { control.HideUserMessage(displayId); });
}

// --- update, print, observed data ---

void CDDDTMGUI::SetLockUpdate(bool locked) {
  lockUpdate_ = locked;
  controls_.ForEachOffering<IDDDTMGUIUpdateControl>(
      "IDDDTMGUIUpdateControl_LockUpdate",
      [&](IDDDTMGUIUpdateControl& control) { control.SetLockUpdate(locked); });
}

void CDDDTMGUI::RefreshView() {
  controls_.ForEach("IDDDTMGUIUpdateControl_RefreshView", [](CGUIObj&, IDDDTMGUI& control) {
    if (auto* updateControl = dynamic_cast<IDDDTMGUIUpdateControl*>(&control)) {
      updateControl->RefreshView();
    } else if (auto* guiControl = dynamic_cast<IGuiCtrl*>(&control)) {
      guiControl->RefreshAllData();
    }
  });
}

bool CDDDTMGUI::DoPrint(std::int32_t functionId, std::int32_t printType, Variant& printResult) {
  bool printed = false;
  controls_.ForEachOffering<IDDPrint>("IDDPrint_DoPrint", [&](IDDPrint& control) {
    printed = control.DoPrint(functionId, printType, printResult);
    return printed;
  });
  return printed;
}

void CDDDTMGUI::ObservedDataChangeEvent() {
  controls_.ForEach("IGuiManager_ObservedDataChangeEvent",
                    [](CGUIObj& entry, IDDDTMGUI&) { entry.CollectObservedData(); });
}

}  // namespace ZAFHartLib
