#include "gui/GuiSettings.h"

#include "settings/Settings.h"
#include "types/Failure.h"

namespace ZAFHartLib {

using ZAFHartTypes::IgnoreFailures;
using ZAFHartTypes::IKernelInformation;

GuiSettings ReadGuiSettings(const std::shared_ptr<IKernelInformation>& information) {
  std::string componentFile;
  IgnoreFailures([&] {
    if (information) componentFile = information->ComponentFileName();
  });
  const std::string ownKey = DtmSettingsPath(componentFile);
  GuiSettings settings;
  settings.enableHostVariableFilter =
      GetNumberSetting(ownKey, kDtmsKey, kEnableHostVariableFilter, 0) == 1;
  settings.filterDDObjectsForGUI =
      GetNumberSetting(ownKey, kDtmsKey, kFilterDDObjectsForGui, 1) > 0;
  settings.showDDInformation = GetNumberSetting(kDtmsKey, {}, kShowDDInformation, 1) != 0;
  settings.useErrorHandler = componentFile.empty() || UseErrorHandler(componentFile);
  return settings;
}

}  // namespace ZAFHartLib
