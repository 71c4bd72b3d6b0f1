#pragma once

#include <string>
#include <string_view>

#include "platform/Export.h"

namespace ZAFHartLib {

// Registry keys of the library's settings. Every setting has a default, none is required, and none
// is written by the library.
inline constexpr std::string_view kDtmsKey =
    R"(\HKEY_LOCAL_MACHINE\SOFTWARE\Quillbridge\HART\DTMs)";
inline constexpr std::string_view kTracerKey =
    R"(\HKEY_LOCAL_MACHINE\SOFTWARE\Quillbridge\HART\Tracer)";

// Names of the values.
inline constexpr std::string_view kEnableHostVariableFilter = "EnableHostVariableFilter";
inline constexpr std::string_view kFilterDDObjectsForGui = "FilterDDObjectsForGUI";
inline constexpr std::string_view kDisableUnitRecalculation = "DisableUnitRecalculation";
inline constexpr std::string_view kShowDDInformation = "ShowDDInformation";
inline constexpr std::string_view kUseErrorHandler = "UseErrorHandler";
inline constexpr std::string_view kTracerClassName = "ClassName";

// The value under the first key, else under the second, else the default. Never fails.
ZAF_API std::string GetSetting(std::string_view firstKey, std::string_view secondKey,
                               std::string_view valueName, std::string_view defaultText);
// The same for a numeric value; the default also when the text found is no number.
ZAF_API double GetNumberSetting(std::string_view firstKey, std::string_view secondKey,
                                std::string_view valueName, double defaultNumber);

// The DTM's own key: its component file name up to and including the first ".", then "DDDataModel".
ZAF_API std::string DtmSettingsKey(std::string_view componentFileName);
// Its full path, under the DTMs key.
ZAF_API std::string DtmSettingsPath(std::string_view componentFileName);

// DD names and numbers are shown to the user. Read once per user-interface thread; true when it
// cannot be read.
ZAF_API bool ShowDDInformation();

// Failures of controls are traced instead of reaching whoever called the GUI manager, for the DTM
// of that component file. True when it cannot be read.
ZAF_API bool UseErrorHandler(std::string_view componentFileName);

}  // namespace ZAFHartLib
