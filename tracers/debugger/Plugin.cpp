#include "dtmkit/Plugin.h"

#include "debugger/PluginTracer.h"

namespace {

constexpr platform::PluginClass kClasses[] = {
    {"ZAFHartDebugger.Tracer", &ZAFHartTypes::dtmkit::CreateObject<ZAFHartDebugger::PluginTracer>}};

}  // namespace

extern "C" const platform::PluginDescription* ZafHartPluginDescription() noexcept {
  static const platform::PluginDescription description{sizeof(platform::PluginDescription),
                                                       platform::kPluginAbi,
                                                       platform::PluginBuildTag(),
                                                       kClasses,
                                                       std::size(kClasses),
                                                       nullptr};
  return &description;
}
