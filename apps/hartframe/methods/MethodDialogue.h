#pragma once

#include <deque>
#include <optional>
#include <string>

#include "hartframe/Session.h"
#include "hartframe/methods/MethodWatch.h"
#include "interfaces/ControlBase.h"

namespace hartframe {

// Shows the messages of a method and gets their answers: from the script in the order given, else
// from the user at the terminal. Errors are shown and need none. An answer that is missing or not
// accepted aborts the method. While it is being aborted, no more answers of the script are used:
// what is to be acknowledged passes, what is asked for is cancelled.
class MethodDialogue : public ZAFHartTypes::ControlBase {
 public:
  MethodDialogue(Session& session, MethodWatch& watch);

  std::int32_t ShowUserMessage(ZAFHartTypes::UserMessage& message) override;

  // What was wrong with an answer: a sentence for the user and its name for machines.
  struct Trouble {
    std::string code;
    std::string sentence;
  };
  const std::optional<Trouble>& AnswerTrouble() const { return trouble_; }
  // The user has cancelled a message.
  bool IsCancelled() const { return isCancelled_; }
  // Answers of the script that nobody has asked for.
  const std::deque<std::string>& Left() const { return answers_; }

 private:
  std::int32_t Answer(ZAFHartTypes::UserMessage& message);
  std::int32_t AnswerFromScript(ZAFHartTypes::UserMessage& message);
  std::int32_t AskUser(ZAFHartTypes::UserMessage& message);
  std::int32_t Close(const ZAFHartTypes::UserMessage& message);
  std::int32_t Accept(const ZAFHartTypes::UserMessage& message);
  std::int32_t Cancel();
  std::int32_t Refuse(std::string code, std::string sentence);
  std::string Allowed(const ZAFHartTypes::UserMessage& message) const;
  std::int32_t Pause(std::int32_t seconds);
  bool IsErrorReport(const ZAFHartTypes::UserMessage& message) const;

  Session& session_;
  MethodWatch& watch_;
  std::deque<std::string> answers_;
  std::optional<Trouble> trouble_;
  bool isCancelled_ = false;
};

}  // namespace hartframe
