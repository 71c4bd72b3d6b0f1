#include "hartframe/browse/Messages.h"

#include "hartframe/browse/ValueEditor.h"
#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"
#include "text/LangText.h"

namespace hartframe::browse {

namespace {

using ZAFHartTypes::MessageIcon;
using ZAFHartTypes::UserMessage;

constexpr std::int32_t kCountdownFrom = 3;  // seconds; shorter ones need none

DialogStyle StyleOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Critical:
      return DialogStyle::Error;
    case MessageIcon::Exclamation:
      return DialogStyle::Warning;
    case MessageIcon::Question:
      return DialogStyle::Question;
    case MessageIcon::Input:
      return DialogStyle::Input;
    default:
      return DialogStyle::Information;
  }
}

Tone ToneOf(MessageIcon icon) {
  if (icon == MessageIcon::Critical) return Tone::Bad;
  return icon == MessageIcon::Exclamation ? Tone::Pending : Tone::Plain;
}

DialogHead HeadOf(const UserMessage& message) {
  return {StyleOf(message.icon), OneLine(message.title), message.prompt, message.help};
}

// An error that the runtime reports, as opposed to what a method has to say. A device's warning has
// the icon of a method's message.
bool IsError(const UserMessage& message, const std::string& language) {
  if (message.icon == MessageIcon::Critical) return true;
  return message.icon == MessageIcon::Information && message.delay < 0 &&
         message.title ==
             ZAFHartLib::LangText(ZAFHartLib::ResText(ZAFHartLib::idTitleCommandError), language);
}

}  // namespace

std::int32_t Messages::Show(UserMessage& message) {
  // What comes while another dialog waits is from the background.
  const bool stops = errorsStop_ && !screen_.IsAsking();
  const bool isError = !message.input && IsError(message, session_.Say().Language());
  if (isError && !stops) {
    screen_.TellInBackground(ToneOf(message.icon), message.title + ": " + message.prompt,
                             message.help);
    return 0;
  }
  if (session_.Interrupted()) return ZAFHartTypes::kMessageCancelled;
  if (message.displayId > 0) Hide(message.displayId);
  const std::int32_t answer = Answer(message);
  if (answer != ZAFHartTypes::kMessageCancelled) return answer;
  wasCancelled_ = true;
  if (isError && onErrorCancelled_) onErrorCancelled_();
  return answer;
}

std::int32_t Messages::Answer(UserMessage& message) {
  if (message.input) return Ask(message);
  const bool canBeRead = message.icon == MessageIcon::Critical || message.delay < 0;
  if (!canBeRead) return ShowForAWhile(message);
  TextDialog dialog(session_.Say(), HeadOf(message));
  const bool isRead = message.delay < 0 ? screen_.Run(dialog)
                                        : screen_.Run(dialog, std::chrono::seconds(message.delay));
  return isRead ? 0 : ZAFHartTypes::kMessageCancelled;
}

std::int32_t Messages::Ask(UserMessage& message) {
  const auto edited = EditValue(screen_, session_.Say(), *message.input, HeadOf(message));
  if (!edited) return ZAFHartTypes::kMessageCancelled;
  message.input->SetValue(edited->value);
  return 0;
}

std::int32_t Messages::ShowForAWhile(UserMessage& message) {
  const auto dialog = std::make_shared<TimedDialog>(session_.Say(), HeadOf(message));
  if (!screen_.Show(*dialog, std::chrono::seconds(message.delay),
                    message.delay >= kCountdownFrom)) {
    return ZAFHartTypes::kMessageCancelled;
  }
  dialog->SetSecondsLeft(0);
  message.displayId = ++lastId_;
  left_[message.displayId] = dialog;
  screen_.Leave(dialog);
  return ZAFHartTypes::kMessageTimedOut;
}

void Messages::Hide(std::int32_t displayId) {
  const auto found = left_.find(displayId);
  if (found == left_.end()) return;
  screen_.TakeOff(found->second);
  left_.erase(found);
}

}  // namespace hartframe::browse
