#include "hartframe/Identity.h"

#include "ddobjects/Command.h"
#include "hartframe/InfoTexts.h"

namespace hartframe {

std::shared_ptr<ZAFHartTypes::Command> IdentityCommand(Session& session) {
  for (const ZAFHartTypes::Definition& definition : session.Kernel().Commands()) {
    const auto command = session.Kernel().GetSafeCommand(definition);
    if (command && command->Number() == 0 && command->Transactions().Count() > 0) return command;
  }
  return nullptr;
}

void TellMissingIdentity(Session& session) {
  if (session.Settings().command == CommandKind::List || IdentityCommand(session)) return;
  session.Tell().Problem("noIdentityCommand", session.Say()(texts::kNoIdentityCommand));
}

}  // namespace hartframe
