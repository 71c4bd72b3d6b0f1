#include <string>
#include <vector>

#include "Fuzz.h"
#include "InputFile.h"
#include "platform/Registry.h"
#include "platform/TextFile.h"

namespace {

std::string Saved(const platform::Registry& registry, const std::filesystem::path& file) {
  registry.Save(file);
  return platform::ReadWholeFile(file);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::InputFile file("registry");
  file.Fill(fuzz::AsText({data, size}));
  platform::Registry registry;
  registry.SetValue("\\Kept", "Name", "value");
  if (!fuzz::Accepts([&] { registry.Load(file.Path()); })) {
    fuzz::Check(registry.Subkeys("\\").size() == 1, "of a broken file nothing is taken");
    return 0;
  }
  const std::string text = Saved(registry, file.Path());
  platform::Registry again;
  again.Load(file.Path());
  fuzz::Check(Saved(again, file.Path()) == text, "what is saved reads back the same");
  return 0;
}
