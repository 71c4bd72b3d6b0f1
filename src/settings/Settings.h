#pragma once

#include <string>
#include <string_view>

#include "platform/Export.h"

namespace ZAFHartLib {

// Registry keys of the library's settings: those of DTMs, and the external tracer's. Every setting
// has a default, none is required, and none is written by the library. The registry is that of the
// thread's platform.
inline constexpr std::string_view kDtmsKey =
    R"(\HKEY_LOCAL_MACHINE\SOFTWARE\Quillbridge\HART\DTMs)";
inline constexpr std::string_view kTracerKey =
    R"(\HKEY_LOCAL_MACHINE\SOFTWARE\Quillbridge\HART\Tracer)";

// Names of the values. The first three are looked for under the DTM's own key and then under the
// DTMs key; each is a number, 0 is off.
//
// 1: while the GUI's update is locked, controls are shown internal objects alone. Off by default.
inline constexpr std::string_view kEnableHostVariableFilter = "EnableHostVariableFilter";
// A control is told about an object only when its state is new to the control; on by default.
inline constexpr std::string_view kFilterDDObjectsForGui = "FilterDDObjectsForGUI";
// A change of unit leaves values as they are instead of converting them; off by default.
inline constexpr std::string_view kDisableUnitRecalculation = "DisableUnitRecalculation";
// See the functions of these names; on by default.
inline constexpr std::string_view kShowDDInformation = "ShowDDInformation";
inline constexpr std::string_view kUseErrorHandler = "UseErrorHandler";
// Under the tracer's key: the class of the external tracer, "project.class"; none by default.
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
