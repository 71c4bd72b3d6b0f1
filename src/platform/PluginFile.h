#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/Plugin.h"

namespace platform {

// A class of a plug-in. `create` raises CannotCreateObject with the plug-in's own text when it
// cannot make the object.
struct PluginFactory {
  std::string className;
  std::function<std::shared_ptr<Object>()> create;
};

// The classes that a plug-in describes itself to have. Raises CannotCreateObject, naming the file
// and what is wrong, for a description of another version, one that tells an error and one with
// holes.
std::vector<PluginFactory> FactoriesOf(const PluginDescription& description,
                                       const std::filesystem::path& file);

// Loads a plug-in for the rest of the process and returns its classes. Raises InvalidArgument for
// a relative path, and CannotCreateObject, naming the file and what is wrong, when it cannot be
// loaded, is no plug-in, was built for another version or could not prepare itself.
std::vector<PluginFactory> OpenPlugin(const std::filesystem::path& file);

}  // namespace platform
