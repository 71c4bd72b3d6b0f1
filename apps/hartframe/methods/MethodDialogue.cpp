#include "hartframe/methods/MethodDialogue.h"

#include "hartframe/methods/InputQuestion.h"
#include "hartframe/methods/MethodTexts.h"
#include "hartframe/values/ValueText.h"
#include "platform/Platform.h"
#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"
#include "types/TextKey.h"

namespace hartframe {

namespace {

using ZAFHartTypes::kMessageCancelled;
using ZAFHartTypes::kWaitForUser;
using ZAFHartTypes::MessageIcon;
using ZAFHartTypes::SameKey;
using ZAFHartTypes::TypeCode;
using ZAFHartTypes::UserMessage;
using ZAFHartTypes::Variable;

constexpr const char* kOk = "ok";
constexpr const char* kCancel = "cancel";

std::string Shown(const std::string& answer, const UserMessage& message) {
  const bool isSecret = message.input && message.input->TypeInfo().TypeCode() == TypeCode::Password;
  return isSecret ? "****" : OneLine(answer);
}

std::string PresentAnswer(const Variable& input, const Speech& speech) {
  return WithUnit(input, QuestionText(input, input.Value(), speech), speech);
}

}  // namespace

MethodDialogue::MethodDialogue(Session& session, MethodWatch& watch)
    : session_(session),
      watch_(watch),
      answers_(session.Settings().answers.begin(), session.Settings().answers.end()) {}

std::int32_t MethodDialogue::ShowUserMessage(UserMessage& message) {
  if (IsErrorReport(message)) {
    session_.Tell().Message(message);
    return 0;
  }
  session_.Tell().Prompt(message);
  if (message.delay == kWaitForUser) return Answer(message);
  return message.delay > 0 ? Pause(message.delay) : 0;
}

// Warnings of the device are reported like errors, with the icon of an information.
bool MethodDialogue::IsErrorReport(const UserMessage& message) const {
  return message.icon == MessageIcon::Critical ||
         session_.Say().Pick(message.title) ==
             session_.Say().Pick(ZAFHartLib::ResText(ZAFHartLib::idTitleCommandError));
}

std::int32_t MethodDialogue::Answer(UserMessage& message) {
  const bool canAsk = session_.Terminal().CanAsk();
  if (watch_.IsClosing()) return canAsk ? AskUser(message) : Close(message);
  if (!message.input && session_.Settings().yes) return Accept(message);
  if (!answers_.empty()) return AnswerFromScript(message);
  if (canAsk) return AskUser(message);
  return Refuse("answerMissing",
                session_.Say()(texts::kAnswerMissing, {OneLine(message.prompt), Allowed(message)}));
}

std::int32_t MethodDialogue::AnswerFromScript(UserMessage& message) {
  const std::string answer = answers_.front();
  answers_.pop_front();
  if (SameKey(answer, kCancel)) return Cancel();
  const bool taken = message.input ? TakeAnswer(*message.input, answer, watch_.Options())
                                   : answer.empty() || SameKey(answer, kOk);
  if (taken) return Accept(message);
  session_.Tell().Answer(Shown(answer, message));
  return Refuse("answerRefused",
                session_.Say()(texts::kAnswerRefused, {OneLine(message.prompt),
                                                       Shown(answer, message), Allowed(message)}));
}

std::int32_t MethodDialogue::AskUser(UserMessage& message) {
  Console& console = session_.Terminal();
  const auto isBroken = [this, isClosing = watch_.IsClosing()] {
    return session_.Interrupted() && !isClosing;
  };
  const bool answered =
      message.input
          ? AskForValue(*message.input, console, session_.Say(), isBroken, watch_.Options())
          : console.Ask(session_.Say()(texts::kPressEnter), isBroken).has_value();
  return answered ? Accept(message) : Cancel();
}

// Nobody can be asked, and the script has not foreseen the abort.
std::int32_t MethodDialogue::Close(const UserMessage& message) {
  return message.input ? kMessageCancelled : 0;
}

std::int32_t MethodDialogue::Accept(const UserMessage& message) {
  session_.Tell().Answer(message.input ? PresentAnswer(*message.input, session_.Say()) : kOk);
  return 0;
}

std::int32_t MethodDialogue::Cancel() {
  session_.Tell().Answer(kCancel);
  isCancelled_ = true;
  return kMessageCancelled;
}

std::int32_t MethodDialogue::Refuse(std::string code, std::string sentence) {
  trouble_ = Trouble{std::move(code), std::move(sentence)};
  watch_.AbortAll();
  return kMessageCancelled;
}

std::string MethodDialogue::Allowed(const UserMessage& message) const {
  return message.input ? AllowedText(*message.input, session_.Say())
                       : session_.Say()(texts::kAllowedToAcknowledge);
}

// The rest of the time is counted down on a terminal.
std::int32_t MethodDialogue::Pause(std::int32_t seconds) {
  constexpr platform::Milliseconds kStep(20);
  platform::Clock& clock = platform::Current().GetClock();
  const bool isClosing = watch_.IsClosing();
  const auto end = clock.Now() + std::chrono::seconds(seconds);
  while (clock.Now() < end) {
    if (session_.Interrupted() && !isClosing) return Cancel();
    const auto left = std::chrono::ceil<std::chrono::seconds>(end - clock.Now());
    session_.Terminal().Status(session_.Say()(texts::kSecondsLeft, {std::to_string(left.count())}));
    platform::Current().Loop().WaitStep(kStep);
  }
  session_.Terminal().Status({});
  return 0;
}

}  // namespace hartframe
