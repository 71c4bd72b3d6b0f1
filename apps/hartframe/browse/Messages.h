#pragma once

#include <functional>
#include <map>

#include "hartframe/browse/Dialogs.h"
#include "hartframe/browse/Screen.h"
#include "interfaces/IDDDTMGUI.h"

namespace hartframe::browse {

// The DTM's messages to the user, as the message control of the frame. A message that waits for the
// user, or asks for a value, is a dialog; one with a time stays as long, and on the screen until it
// is hidden. Errors stop the user only in what he has started himself; others are told in the
// message line.
class Messages {
 public:
  Messages(Session& session, Screen& screen) : session_(session), screen_(screen) {}

  // kMessageCancelled when the user breaks off, kMessageTimedOut when the time has passed, else 0.
  std::int32_t Show(ZAFHartTypes::UserMessage& message);
  void Hide(std::int32_t displayId);
  // Errors are dialogs from now on, or not.
  void SetErrorsStop(bool stop) { errorsStop_ = stop; }
  bool ErrorsStop() const { return errorsStop_; }
  // What cancelling an error does beside answering it: the runtime would try again.
  void SetOnErrorCancelled(std::function<void()> action) { onErrorCancelled_ = std::move(action); }
  // The user has cancelled a message since Forget.
  bool WasCancelled() const { return wasCancelled_; }
  void Forget() { wasCancelled_ = false; }

 private:
  std::int32_t Answer(ZAFHartTypes::UserMessage& message);
  std::int32_t Ask(ZAFHartTypes::UserMessage& message);
  std::int32_t ShowForAWhile(ZAFHartTypes::UserMessage& message);

  Session& session_;
  Screen& screen_;
  bool errorsStop_ = false;
  bool wasCancelled_ = false;
  std::function<void()> onErrorCancelled_;
  std::int32_t lastId_ = 0;
  std::map<std::int32_t, std::shared_ptr<Dialog>> left_;  // on the screen, by display id
};

}  // namespace hartframe::browse
