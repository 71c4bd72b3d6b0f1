#include "platform/Plugin.h"

// A plug-in with one thing wrong, chosen by the build.
extern "C" const platform::PluginDescription* ZafHartPluginDescription() noexcept {
  static platform::PluginDescription description{sizeof(platform::PluginDescription),
                                                 platform::kPluginAbi,
                                                 platform::PluginBuildTag(),
                                                 nullptr,
                                                 0,
                                                 nullptr};
#if defined(WRONG_abi)
  description.abi = 99;
#elif defined(WRONG_size)
  description.size = 8;
#elif defined(WRONG_tag)
  description.buildTag = "an older compiler";
#elif defined(WRONG_error)
  description.error = "the device catalogue is damaged";
#endif
  return &description;
}
