// The error members of the GUI manager: asked of the error handler, traced, shown to the user.

#include <utility>

#include "gui/CDDDTMGUI.h"
#include "interfaces/IDDComponents.h"
#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::CommandRef;
using ZAFHartTypes::CommandStatus;
using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Failure;
using ZAFHartTypes::IDDErrorHandler;
using ZAFHartTypes::IgnoreFailures;
using ZAFHartTypes::ItemIndex;
using ZAFHartTypes::MessageIcon;
using ZAFHartTypes::Variable;

constexpr const char* kEvaluationErrorTitle = "DD - Evaluation Error";

bool IsCyclic(ItemIndex index) {
  return index == ItemIndex::CyclicCommand || index == ItemIndex::CyclicVariable;
}

bool IsNotShown(ItemIndex index) {
  return index == ItemIndex::CannotRead || index == ItemIndex::ReadNotValid ||
         index == ItemIndex::WriteNotValid || index == ItemIndex::MethodNotValid;
}

bool IsRefusedWrite(ItemIndex index) {
  return index == ItemIndex::CannotWrite || index == ItemIndex::NotWritable;
}

[[noreturn]] void RaiseMissing(const char* member, const char* what) {
  throw Failure(ErrorNumber::InvalidArgument, std::string("CDDDTMGUI.") + member,
                std::string("The error is reported without its ") + what + ".");
}

}  // namespace

std::string CDDDTMGUI::StackText() const {
  const std::string entries = stack_->Text();
  return entries.empty() ? entries : "Call Stack Information:" + entries;
}

std::int16_t CDDDTMGUI::InfoLevel() const {
  return static_cast<std::int16_t>(tracer_ ? tracer_->GetTraceInfoLevel() : 1);
}

template <typename Ask>
bool CDDDTMGUI::IsHandled(Ask&& ask) {
  std::int32_t answer = 0;
  if (const auto handler = errorHandler_) {
    IgnoreFailures(
        [&] { answer = platform::CallForeign("IDDErrorHandler", [&] { return ask(*handler); }); });
  }
  return (answer & 1) != 0;
}

std::int32_t CDDDTMGUI::ShowError(std::string title, std::string prompt, std::string help,
                                  MessageIcon icon) {
  UserMessage message;
  message.icon = icon;
  message.title = std::move(title);
  message.prompt = std::move(prompt);
  message.help = std::move(help);
  const std::int32_t result = ShowUserMessage(message);
  if (message.displayId > 0) HideUserMessage(message.displayId);
  return result;
}

void CDDDTMGUI::SetLastResult(std::int32_t result) {
  const auto components = model_.Get();
  if (const auto comm = components ? components->HARTComm() : nullptr) comm->SetLastResult(result);
}

void CDDDTMGUI::EvaluationError(const std::string& message) {
  const bool handled =
      IsHandled([&](IDDErrorHandler& handler) { return handler.EvaluationError(message); });
  if (handled && !IsTraced()) return;
  const std::string stackText = StackText();
  if (IsTraced()) {
    tracer_->TraceEvaluationError(
        Database(), std::string(kEvaluationErrorTitle) + ": " + message + kLineBreak + stackText);
  }
  if (!handled) ShowError(kEvaluationErrorTitle, message, stackText);
}

void CDDDTMGUI::ObjectError(const Object& object, ItemIndex index) {
  if (!object) RaiseMissing("ObjectError", "object");
  const bool handled =
      IsHandled([&](IDDErrorHandler& handler) { return handler.ObjectError(object, index); });
  const bool isTold = !handled && !IsNotShown(index);
  const bool isRead = isTold || IsTraced();
  const std::string stackText = isRead ? StackText() : std::string();
  const std::string text = isRead ? Texts().ObjectError(object, index) : std::string();
  const auto variable = object->MakeVariable();
  if (variable) RecordError(*variable, index);
  if (IsTraced()) {
    tracer_->TraceObjectError(Database(), "Object Error: " + text + kLineBreak + kLineBreak +
                                              object->Describe(InfoLevel()) + kLineBreak +
                                              stackText);
  }
  if (variable) SettleVariable(*variable, index);
  if (isTold) ReportToUser(index, text, stackText);
}

// What is recorded of an error before it is traced. The first error of a variable stands.
void CDDDTMGUI::RecordError(Variable& variable, ItemIndex index) {
  const auto number = static_cast<std::int32_t>(index);
  if (index != ItemIndex::ReadNotValid && variable.ErrorIndex() == 0 &&
      !variable.Attributes().IsLibraryHeld()) {
    variable.SetErrorIndex(number);
    variable.SetErrorText(ResText(idDDErrorCodes + number));
  }
  if (const auto database = Database()) {
    database->SetVariableError(variable.Definition(), variable.ErrorIndex(), variable.ErrorText());
  }
  if (IsRefusedWrite(index)) variable.SetToBeWritten(false);
}

// What an error does to its variable after it has been traced, handled or not.
void CDDDTMGUI::SettleVariable(Variable& variable, ItemIndex index) {
  const auto database = Database();
  if (index == ItemIndex::CannotRead) {
    // Not to be read again.
    if (database) database->SetVariableAvailable(variable.Definition(), true);
    variable.SetAvailable(true);
  } else if (index == ItemIndex::ReadNotValid) {
    variable.SetErrorIndex(0);
    variable.SetErrorText({});
    if (database) database->SetVariableError(variable.Definition(), 0, {});
  }
}

void CDDDTMGUI::ReportToUser(ItemIndex index, const std::string& text,
                             const std::string& stackText) {
  if (IsCyclic(index)) throw Failure(ErrorNumber::Unexpected, "CDDDTMGUI.ObjectError", text);
  const std::int32_t result = ShowError(Texts().Resource(idDDErrorCodes), text, stackText);
  if (index == ItemIndex::NoCommunication) SetLastResult(result);
}

void CDDDTMGUI::ResponseCodeError(const CommandStatus& status,
                                  const std::shared_ptr<CommandRef>& command) {
  const bool failed = status.responseCode != 0 || status.communication != 0;
  if (failed && !(command && command->Command())) RaiseMissing("ResponseCodeError", "command");
  const bool handled = IsHandled(
      [&](IDDErrorHandler& handler) { return handler.ResponseCodeError(status, command); });
  std::int32_t result = 0;
  if (failed && (!handled || IsTraced())) {
    result = ReportResponse(status.responseCode != 0
                                ? Texts().ResponseCode(status.responseCode, *command)
                                : Texts().CommunicationError(status.communication, *command),
                            *command, handled);
  }
  if (!handled) SetLastResult(result);
}

// Answers the user's result, 0 when nothing was shown.
std::int32_t CDDDTMGUI::ReportResponse(const ErrorReport& report, const CommandRef& command,
                                       bool handled) {
  const std::string stackText = StackText();
  if (IsTraced()) {
    tracer_->TraceResponseCodeError(Database(), "Response Code Error: " + report.text + kLineBreak +
                                                    command.Describe(InfoLevel()) + kLineBreak +
                                                    stackText);
  }
  if (handled || !report.shown) return 0;
  return ShowError(Texts().Resource(idTitleCommandError), report.text, report.help + stackText,
                   report.icon);
}

}  // namespace ZAFHartLib
