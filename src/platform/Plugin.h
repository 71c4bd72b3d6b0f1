#pragma once

#include <cstdint>
#include <memory>

#include "platform/Object.h"
#include "platform/Version.h"

// What decides whether objects of the standard library look the same on both sides. The compiler
// does not: those for one system agree on the layout of classes, on calls and on exceptions.
#if defined(_GLIBCXX_RELEASE)
#if defined(_GLIBCXX_DEBUG)
#define ZAF_STANDARD_LIBRARY_MODE " in debug mode"
#elif !_GLIBCXX_USE_CXX11_ABI
#define ZAF_STANDARD_LIBRARY_MODE " with its old strings"
#else
#define ZAF_STANDARD_LIBRARY_MODE ""
#endif
#define ZAF_STANDARD_LIBRARY "libstdc++ " ZAF_TEXT_OF(_GLIBCXX_RELEASE) ZAF_STANDARD_LIBRARY_MODE
#elif defined(_LIBCPP_VERSION)
#define ZAF_STANDARD_LIBRARY "libc++ " ZAF_TEXT_OF(_LIBCPP_VERSION)
#else
#define ZAF_STANDARD_LIBRARY "another standard library"
#endif

namespace platform {

// Changes whenever an object made by one build of the library cannot be used by another.
inline constexpr std::uint32_t kPluginAbi = 3;

// Standard library, and series of this library, that the including file is built with. Static, so
// that a plug-in tells its own and not what the library was built with.
[[maybe_unused]] static const char* PluginBuildTag() {
  return ZAF_STANDARD_LIBRARY ", ZAFHartLib " ZAFHARTLIB_SERIES;
}

// One class that a plug-in offers.
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
  std::uint32_t abi;     // kPluginAbi
  const char* buildTag;  // PluginBuildTag()
  const PluginClass* classes;
  std::uint32_t classCount;
  const char* error;  // nullptr for none
};

// That function, with C linkage and this name; the macro of dtmkit/Plugin.h writes it.
using PluginEntry = const PluginDescription* (*)() noexcept;
inline constexpr const char* kPluginEntryName = "ZafHartPluginDescription";

}  // namespace platform
