#pragma once

#include <iterator>
#include <memory>

#include "platform/Plugin.h"

namespace ZAFHartTypes::dtmkit {

// Runs `action` and returns nullptr, or the text of whatever it threw. The text stays until the
// next failure on the same thread.
const char* ErrorOf(void (*action)(void* argument), void* argument) noexcept;

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

// The one exported function of a DTM's plug-in, in one source file of it:
//
//   ZAF_DTM_PLUGIN("SampleTemperature", sampletemperature::DataModel,
//                  sampletemperature::KernelInformation)
//
// It offers the classes "<project>.DataModel" and "<project>.KernelInformation" and throws nothing.
// Neither runs anything of the DTM: whether it fits the library is not known yet at that time. A
// description that contradicts itself is told when the first data model is made.
#define ZAF_DTM_PLUGIN(project, Model, Information)                                           \
  extern "C" const platform::PluginDescription* ZafHartPluginDescription() noexcept {         \
    static constexpr platform::PluginClass kClasses[] = {                                     \
        {project ".DataModel", &ZAFHartTypes::dtmkit::CreateObject<Model>},                   \
        {project ".KernelInformation", &ZAFHartTypes::dtmkit::CreateObject<Information>}};    \
    static const platform::PluginDescription description{sizeof(platform::PluginDescription), \
                                                         platform::kPluginAbi,                \
                                                         platform::PluginBuildTag(),          \
                                                         kClasses,                            \
                                                         std::size(kClasses),                 \
                                                         nullptr};                            \
    return &description;                                                                      \
  }
