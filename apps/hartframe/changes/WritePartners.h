#pragma once

#include "hartframe/Session.h"

namespace hartframe {

// A write command sends more than what was changed: the tag goes with the descriptor and the date.
// Variables that were not read would reach the device with their defaults.

// Reads what the commands of the marked variables send with them. A variable whose command would
// send what cannot be read is told, no longer marked, and counts as a failed write. False when the
// device did not answer, or after Ctrl-C: then nothing is to be written.
bool HoldBackUnread(Session& session);

}  // namespace hartframe
