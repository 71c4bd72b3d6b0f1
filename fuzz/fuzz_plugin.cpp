#include <deque>
#include <string>
#include <vector>

#include "Fuzz.h"
#include "platform/ComponentClasses.h"
#include "platform/PluginFile.h"

namespace {

using platform::PluginClass;
using platform::PluginDescription;

// Texts of a description; absent ones are null.
class Texts {
 public:
  const char* Take(bool isThere, std::string_view& rest) {
    if (!isThere) return nullptr;
    return kept_.emplace_back(fuzz::TakeText(rest)).c_str();
  }

 private:
  std::deque<std::string> kept_;
};

const char* MakeNothing(std::shared_ptr<platform::Object>* object) noexcept {
  object->reset();
  return nullptr;
}
const char* MakeObject(std::shared_ptr<platform::Object>* object) noexcept {
  *object = std::make_shared<platform::Object>();
  return nullptr;
}
const char* Fail(std::shared_ptr<platform::Object>*) noexcept {
  return "cannot be made";
}
constexpr decltype(PluginClass::create) kCreators[] = {MakeNothing, MakeObject, Fail, nullptr};

void CheckFactories(const PluginDescription& description, std::size_t given) {
  fuzz::Accepts([&] {
    const auto factories = platform::FactoriesOf(description, "/plugin.so");
    fuzz::Check(!description.error && factories.size() == given, "every class has its factory");
    platform::ComponentClasses classes;
    for (const auto& factory : factories) {
      fuzz::Accepts([&] {
        classes.Register(factory.className, factory.create);
        fuzz::Check(classes.Create(factory.className) != nullptr,
                    "an object is made, or why not is told");
      });
    }
  });
}

}  // namespace

// What is wrong (a bit each), how many classes, a byte about each, then the texts, each ended by a
// NUL.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::span<const std::uint8_t> input(data, size);
  const std::size_t flaws = fuzz::Take(input);
  Texts texts;
  std::vector<PluginClass> classes(fuzz::Take(input) % 5);
  std::vector<std::size_t> kinds;
  for (std::size_t i = 0; i < classes.size(); ++i) kinds.push_back(fuzz::Take(input));
  std::string_view rest = fuzz::AsText(input);
  for (std::size_t i = 0; i < classes.size(); ++i) {
    classes[i] = {texts.Take((kinds[i] & 4U) == 0, rest), kCreators[kinds[i] % 4]};
  }
  PluginDescription description{sizeof(PluginDescription),
                                platform::kPluginAbi,
                                platform::PluginBuildTag(),
                                classes.data(),
                                static_cast<std::uint32_t>(classes.size()),
                                nullptr};
  if (flaws & 1U) description.size = static_cast<std::uint32_t>(rest.size());
  if (flaws & 2U) description.abi = static_cast<std::uint32_t>(rest.size());
  if (flaws & 4U) description.buildTag = texts.Take((flaws & 128U) == 0, rest);
  if (flaws & 8U) description.classes = nullptr;
  if (flaws & 16U) description.error = texts.Take(true, rest);
  CheckFactories(description, classes.size());
  return 0;
}
