#pragma once

#include <memory>

#include "hartframe/Session.h"

namespace hartframe {

// HART command 0, Read Unique Identifier; nothing when the DTM has none.
std::shared_ptr<ZAFHartTypes::Command> IdentityCommand(Session& session);
// Tells that the DTM lacks that command, from whose reply the device's address is learnt: the cause
// of what the library will report as a connection that cannot be established.
void TellMissingIdentity(Session& session);

}  // namespace hartframe
