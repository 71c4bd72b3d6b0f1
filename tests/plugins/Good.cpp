#include "Widget.h"
#include "platform/Plugin.h"

namespace {

class Widget : public platform::Object, public IWidget {
 public:
  int Answer() const override { return 42; }
};

const platform::PluginClass kClasses[] = {
    {"Good.Widget",
     [](std::shared_ptr<platform::Object>* object) noexcept -> const char* {
       *object = std::make_shared<Widget>();
       return nullptr;
     }},
    {"Good.Refusing",
     [](std::shared_ptr<platform::Object>*) noexcept -> const char* { return "no licence"; }},
    {"Good.Empty",
     [](std::shared_ptr<platform::Object>*) noexcept -> const char* { return nullptr; }},
};

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
