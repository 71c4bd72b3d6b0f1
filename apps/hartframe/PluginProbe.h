#pragma once

#include <filesystem>

namespace hartframe {

// Loads a plug-in in a process of its own and lets that end: what aborts a process while it loads
// a library cannot be caught in it. Raises CommandFailure (DtmNotLoadable) telling what happened
// when it crashes, refuses or takes longer than 20 seconds.
void ProbePlugin(const std::filesystem::path& file);

// The other side: loads the plug-in and answers the exit code; the reason goes to standard error.
int RunPluginProbe(const std::filesystem::path& file);

}  // namespace hartframe
