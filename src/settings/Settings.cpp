#include "settings/Settings.h"

#include <optional>

#include "platform/Platform.h"
#include "types/Failure.h"
#include "types/NumberText.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::IgnoreFailures;

struct ShowDDInformationState {
  bool loaded = false;
  bool show = true;
};

std::optional<double> AsNumber(const std::optional<std::string>& text) {
  std::optional<double> number;
  if (text) IgnoreFailures([&] { number = ZAFHartTypes::TextToNumber(*text); });
  return number;
}

// The subkey named `name` directly under the DTMs key, or else one level deeper.
std::optional<std::string> FindDtmSubkey(std::string_view name) {
  const platform::Registry& registry = platform::Current().Registry();
  const std::string root = std::string(kDtmsKey) + "\\";
  std::string path = root + std::string(name);
  if (registry.HasKey(path)) return path;
  for (const std::string& subkey : registry.Subkeys(kDtmsKey)) {
    path = root + subkey + "\\" + std::string(name);
    if (registry.HasKey(path)) return path;
  }
  return {};
}

}  // namespace

std::string GetSetting(std::string_view firstKey, std::string_view secondKey,
                       std::string_view valueName, std::string_view defaultText) {
  const platform::Registry& registry = platform::Current().Registry();
  for (const std::string_view key : {firstKey, secondKey}) {
    if (auto value = registry.Value(key, valueName)) return *value;
  }
  return std::string(defaultText);
}

double GetNumberSetting(std::string_view firstKey, std::string_view secondKey,
                        std::string_view valueName, double defaultNumber) {
  return AsNumber(GetSetting(firstKey, secondKey, valueName, {})).value_or(defaultNumber);
}

std::string DtmSettingsKey(std::string_view componentFileName) {
  const std::size_t end = componentFileName.find('.') + 1;  // 0 without one
  return std::string(componentFileName.substr(0, end)) + "DDDataModel";
}

std::string DtmSettingsPath(std::string_view componentFileName) {
  return std::string(kDtmsKey) + "\\" + DtmSettingsKey(componentFileName);
}

bool ShowDDInformation() {
  auto& state = platform::Current().PerThread<ShowDDInformationState>();
  if (!state.loaded) {
    state.show = GetNumberSetting(kDtmsKey, {}, kShowDDInformation, 1) != 0;
    state.loaded = true;
  }
  return state.show;
}

bool UseErrorHandler(std::string_view componentFileName) {
  const auto key = FindDtmSubkey(componentFileName);
  return !key || GetNumberSetting(*key, {}, kUseErrorHandler, 1) != 0;
}

}  // namespace ZAFHartLib
