#pragma once

#include "hartframe/Console.h"
#include "hartframe/SignalWatch.h"
#include "hartframe/Speech.h"
#include "hartframe/report/Report.h"
#include "interfaces/ControlBase.h"

namespace hartframe {

// Shows the DTM's messages and asks for the values that they want. Nothing stays on display, so
// every result is 0, or kMessageCancelled when the user has broken off or nobody can be asked.
class MessageControl : public ZAFHartTypes::ControlBase {
 public:
  MessageControl(Report& report, Console& console, const Speech& speech, SignalWatch& signals)
      : report_(report), console_(console), speech_(speech), signals_(signals) {}

  std::int32_t ShowUserMessage(ZAFHartTypes::UserMessage& message) override;

 private:
  Report& report_;
  Console& console_;
  const Speech& speech_;
  SignalWatch& signals_;
};

}  // namespace hartframe
