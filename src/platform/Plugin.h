#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/Object.h"
#include "platform/Version.h"

#define ZAF_TEXT_OF_(value) #value
#define ZAF_TEXT_OF(value) ZAF_TEXT_OF_(value)

#if defined(__clang__)
#define ZAF_COMPILER "clang " ZAF_TEXT_OF(__clang_major__)
#elif defined(__GNUC__)
#define ZAF_COMPILER "g++ " ZAF_TEXT_OF(__GNUC__)
#else
#define ZAF_COMPILER "another compiler"
#endif

#if defined(_GLIBCXX_DEBUG)
#define ZAF_STANDARD_LIBRARY "libstdc++ " ZAF_TEXT_OF(_GLIBCXX_RELEASE) " in debug mode"
#elif defined(_GLIBCXX_RELEASE)
#define ZAF_STANDARD_LIBRARY "libstdc++ " ZAF_TEXT_OF(_GLIBCXX_RELEASE)
#elif defined(_LIBCPP_VERSION)
#define ZAF_STANDARD_LIBRARY "libc++ " ZAF_TEXT_OF(_LIBCPP_VERSION)
#else
#define ZAF_STANDARD_LIBRARY "another standard library"
#endif

namespace platform {

// Changes whenever an object made by one build of the library cannot be used by another.
inline constexpr std::uint32_t kPluginAbi = 3;

// Compiler, standard library and library version that the including file is built with. Static, so
// that a plug-in tells its own and not what the library was built with.
[[maybe_unused]] static const char* PluginBuildTag() {
  return ZAF_COMPILER ", " ZAF_STANDARD_LIBRARY ", ZAFHartLib " ZAFHARTLIB_VERSION;
}

struct PluginClass {
  const char* name;  // "project.class"
  // Stores a new object; returns nullptr, or the text of what went wrong.
  const char* (*create)(std::shared_ptr<Object>* object) noexcept;
};

// What a plug-in's one exported function returns; it stays valid until the process ends. `size` is
// sizeof(PluginDescription) as the plug-in was compiled; when `error` is set, the plug-in could not
// prepare itself.
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
