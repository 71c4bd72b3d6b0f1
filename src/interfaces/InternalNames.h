#pragma once

#include <string_view>

// Names of the internal items that several rooms use.
namespace ZAFHartTypes::internal_names {

inline constexpr std::string_view kPrefix = "__ZAF__";
inline constexpr std::string_view kDynAvailTime = "__ZAF__DynAvailTime";
inline constexpr std::string_view kStaticAvailTime = "__ZAF__StaticAvailTime";
inline constexpr std::string_view kProgressValue = "__ZAF__ProgressValue";
inline constexpr std::string_view kProgressTitle = "__ZAF__ProgressTitle";
inline constexpr std::string_view kLastCommunicationError = "__ZAF__LastCommunicationError";
inline constexpr std::string_view kOnlineMode = "__ZAF__OnlineMode";
inline constexpr std::string_view kDTMOnlineState = "__ZAF__DTMOnlineState";
inline constexpr std::string_view kInterfaceVersion = "__ZAF__InterfaceVersion";
inline constexpr std::string_view kRefreshOnConnect = "__ZAF__RefreshOnConnect";
inline constexpr std::string_view kFDTUserLevel = "__ZAF__FDTUserLevel";
inline constexpr std::string_view kDataSetState = "__ZAF__DATASETSTATE";
inline constexpr std::string_view kDataSetLockState = "__ZAF__DATASETLOCKSTATE";
inline constexpr std::string_view kStorageState = "__ZAF__STORAGESTATE";
inline constexpr std::string_view kUploadVariables = "__ZAF__upload_variables";
inline constexpr std::string_view kConnectionMenu = "__ZAF__connection_menu";
inline constexpr std::string_view kInitUnitTable = "__ZAF__init_unit_table";

}  // namespace ZAFHartTypes::internal_names
