#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/Object.h"

namespace platform {

// Changes whenever an object made by one build of the library cannot be used by another.
inline constexpr std::uint32_t kPluginAbi = 1;

// Compiler, standard library and library version that a plug-in was built with.
const char* PluginBuildTag();

struct PluginClass {
  const char* name;  // "project.class"
  // Stores a new object; returns nullptr, or the text of what went wrong.
  const char* (*create)(std::shared_ptr<Object>* object) noexcept;
};

// What a plug-in's one exported function returns. `size` is sizeof(PluginDescription) as the
// plug-in was compiled; when `error` is set, the plug-in could not prepare itself.
struct PluginDescription {
  std::uint32_t size;
  std::uint32_t abi;
  const char* buildTag;
  const PluginClass* classes;
  std::uint32_t classCount;
  const char* error;
};

using PluginEntry = const PluginDescription* (*)() noexcept;
inline constexpr const char* kPluginEntryName = "ZafHartPluginDescription";

}  // namespace platform
