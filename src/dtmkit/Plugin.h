#pragma once

#include <iterator>
#include <memory>

#include "platform/Export.h"
#include "platform/Plugin.h"

namespace ZAFHartTypes::dtmkit {

// Runs `action` and returns nullptr, or the text of whatever it threw. The text stays until the
// next failure on the same thread.
ZAF_API const char* ErrorOf(void (*action)(void* argument), void* argument) noexcept;

// Makes an object for a plug-in's class table.
template <typename Class>
const char* CreateObject(std::shared_ptr<platform::Object>* object) noexcept {
  return ErrorOf(
      [](void* result) {
        *static_cast<std::shared_ptr<platform::Object>*>(result) = std::make_shared<Class>();
      },
      object);
}

}  // namespace ZAFHartTypes::dtmkit

// The one exported function of a plug-in, in one source file of it:
//
//   ZAF_PLUGIN({"Sample.Tracer", &ZAFHartTypes::dtmkit::CreateObject<Tracer>})
//
// It offers the classes listed and throws nothing. It runs nothing of the plug-in: whether that
// fits the library is not known yet at that time.
#define ZAF_PLUGIN(...)                                                                       \
  extern "C" ZAF_API const platform::PluginDescription* ZafHartPluginDescription() noexcept { \
    static constexpr platform::PluginClass kClasses[] = {__VA_ARGS__};                        \
    static const platform::PluginDescription description{sizeof(platform::PluginDescription), \
                                                         platform::kPluginAbi,                \
                                                         platform::PluginBuildTag(),          \
                                                         kClasses,                            \
                                                         std::size(kClasses),                 \
                                                         nullptr};                            \
    return &description;                                                                      \
  }

// The plug-in of a DTM, with the classes "<project>.DataModel" and "<project>.KernelInformation":
//
//   ZAF_DTM_PLUGIN("SampleTemperature", sampletemperature::DataModel,
//                  sampletemperature::KernelInformation)
//
// A description that contradicts itself is told when the first data model is made.
#define ZAF_DTM_PLUGIN(project, Model, Information)                              \
  ZAF_PLUGIN({project ".DataModel", &ZAFHartTypes::dtmkit::CreateObject<Model>}, \
             {project ".KernelInformation", &ZAFHartTypes::dtmkit::CreateObject<Information>})
