#pragma once

#include "hartframe/CommandAdder.h"

namespace hartframe {

// The options of the way to the device, and the commands that need no DTM.
void AddLinkOptions(CLI::App& app, Options& options);
void AddLinkCommands(CommandAdder& adder, Options& options);
// Takes the texts apart that were given, and the defaults for those that were not. Raises
// CLI::ValidationError for what does not go together.
void CompleteLink(Options& options);

}  // namespace hartframe
