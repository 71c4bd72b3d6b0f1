#include "settings/GuidText.h"

#include "platform/Platform.h"
#include "types/Failure.h"

namespace ZAFHartLib {

bool NewGuid(platform::Guid& guid) {
  return platform::IgnoreFailures(
      [&] { guid = platform::CreateGuid(platform::Current().Random()); });
}

std::string GuidText(const platform::Guid& guid) {
  return platform::RegistryForm(guid);
}

std::string NewGuidText(bool keepBraces) {
  platform::Guid guid;
  if (!NewGuid(guid)) return {};
  std::string text = GuidText(guid);
  if (!keepBraces && text.starts_with('{') && text.ends_with('}')) {
    text = text.substr(1, text.size() - 2);
  }
  return text;
}

}  // namespace ZAFHartLib
