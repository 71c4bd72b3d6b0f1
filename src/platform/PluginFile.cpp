#include "platform/PluginFile.h"

#include <dlfcn.h>

#include <cstring>
#include <span>

#include "platform/Failure.h"

namespace platform {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void Refuse(const fs::path& file, const std::string& reason) {
  throw Failure(ErrorNumber::CannotCreateObject, "Plugin",
                "the plug-in \"" + file.string() + "\" cannot be used: " + reason);
}

std::string TextOr(const char* text, const char* instead) {
  return text ? text : instead;
}

// Nothing is ever unloaded: objects, type information and texts of a plug-in may be referred to
// until the process ends.
const PluginDescription& Describe(const fs::path& file) {
  void* const library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  if (!library) Refuse(file, TextOr(dlerror(), "it cannot be loaded"));
  const auto entry = reinterpret_cast<PluginEntry>(dlsym(library, kPluginEntryName));
  if (!entry) Refuse(file, std::string("it has no function ") + kPluginEntryName);
  const PluginDescription* const description = entry();
  if (!description) Refuse(file, "it does not describe itself");
  return *description;
}

// `size` and `abi` stand at the same place in every version; nothing else may be looked at before.
void CheckVersion(const fs::path& file, const PluginDescription& description) {
  if (description.abi != kPluginAbi || description.size != sizeof(PluginDescription)) {
    Refuse(file, "it was built for interface version " + std::to_string(description.abi) +
                     " (description of " + std::to_string(description.size) +
                     " bytes), this library has version " + std::to_string(kPluginAbi) + " (" +
                     std::to_string(sizeof(PluginDescription)) + " bytes); build it anew");
  }
  if (!description.buildTag || std::strcmp(description.buildTag, PluginBuildTag()) != 0) {
    Refuse(file, "it was built with \"" + TextOr(description.buildTag, "") +
                     "\", this library with \"" + PluginBuildTag() + "\"; build it anew");
  }
}

PluginFactory MakeFactory(const fs::path& file, const PluginClass& entry) {
  if (!entry.name || !entry.create) Refuse(file, "one of its classes has no name or no factory");
  return {entry.name, [name = std::string(entry.name), create = entry.create] {
            std::shared_ptr<Object> object;
            if (const char* error = create(&object)) {
              throw Failure(ErrorNumber::CannotCreateObject, name, error);
            }
            return object;
          }};
}

}  // namespace

std::vector<PluginFactory> FactoriesOf(const PluginDescription& description, const fs::path& file) {
  CheckVersion(file, description);
  if (description.error) Refuse(file, description.error);
  if (description.classCount > 0 && !description.classes)
    Refuse(file, "it does not list its classes");
  std::vector<PluginFactory> factories;
  for (const PluginClass& entry : std::span(description.classes, description.classCount)) {
    factories.push_back(MakeFactory(file, entry));
  }
  return factories;
}

std::vector<PluginFactory> OpenPlugin(const fs::path& file) {
  if (file.is_relative()) {
    throw Failure(ErrorNumber::InvalidArgument, "Plugin",
                  "The plug-in file \"" + file.string() + "\" is relative; give its full path");
  }
  return FactoriesOf(Describe(file), file);
}

}  // namespace platform
