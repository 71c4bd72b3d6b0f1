#pragma once

#include <memory>

#include "hartframe/Session.h"

namespace hartframe {

// Reads from the device what the variable's validity, limits and unit depend on, so that they are
// the device's and not those of the defaults, then the variable itself. Ctrl-C leaves it as it is
// then; call it inside Session::Run.
std::shared_ptr<ZAFHartTypes::Variable> ReadThoroughly(Session& session,
                                                       const ZAFHartTypes::Definition& definition);

}  // namespace hartframe
