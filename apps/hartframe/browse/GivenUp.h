#pragma once

#include "hartframe/Session.h"

namespace hartframe::browse {

// The variable is no longer to be written; its value is read from the device again.
inline void GiveUpChange(Session& session, const ZAFHartTypes::Definition& variable) {
  if (!session.Variable(variable)->ToBeWritten()) return;
  session.Database().SetVariableToBeWritten(variable, false);
  session.Database().SetVariableAvailable(variable, false);
}

}  // namespace hartframe::browse
