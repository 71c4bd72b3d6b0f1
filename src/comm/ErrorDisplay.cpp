#include "comm/ErrorDisplay.h"

#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"
#include "text/modDDPrintF.h"

namespace ZAFHartLib {
namespace {

constexpr std::int32_t kCriticalDelay = 300;  // seconds

ZAFHartTypes::UserMessage MessageOf(ErrorSeverity severity) {
  ZAFHartTypes::UserMessage message;
  const bool isCritical = severity == ErrorSeverity::Critical;
  message.icon = ZAFHartTypes::MessageIcon::Critical;
  message.title = ResText(isCritical ? idTitleCriticalError : idTitleError);
  message.help = ResText(isCritical ? idHelpCriticalError : idHelpError);
  message.delay = isCritical ? kCriticalDelay : ZAFHartTypes::kWaitForUser;
  return message;
}

}  // namespace

bool ShowError(ZAFHartTypes::IDDDTMGUI& gui, ErrorSeverity severity, std::int32_t id,
               const ZAFHartTypes::PromptValues& values) {
  return ShowError(gui, severity,
                   values.IsEmpty() ? ResText(id) : FormatDDString(ResText(id), values));
}

bool ShowError(ZAFHartTypes::IDDDTMGUI& gui, ErrorSeverity severity, const std::string& text) {
  ZAFHartTypes::UserMessage message = MessageOf(severity);
  message.prompt = text;
  const std::int32_t answer = gui.ShowUserMessage(message);
  if (message.displayId > 0) gui.HideUserMessage(message.displayId);
  return severity == ErrorSeverity::Critical || answer == ZAFHartTypes::kMessageCancelled;
}

}  // namespace ZAFHartLib
