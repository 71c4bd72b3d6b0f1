#pragma once

#include <string_view>

// Names of the internal items that several rooms use.
namespace ZAFHartTypes::internal_names {

inline constexpr std::string_view kPrefix = "__ZAF__";
inline constexpr std::string_view kDynAvailTime = "__ZAF__DynAvailTime";
inline constexpr std::string_view kStaticAvailTime = "__ZAF__StaticAvailTime";
inline constexpr std::string_view kProgressValue = "__ZAF__ProgressValue";
inline constexpr std::string_view kProgressTitle = "__ZAF__ProgressTitle";
inline constexpr std::string_view kProgressSubTitle = "__ZAF__ProgressSubTitle";
inline constexpr std::string_view kLastCommunicationError = "__ZAF__LastCommunicationError";
inline constexpr std::string_view kOnlineMode = "__ZAF__OnlineMode";
inline constexpr std::string_view kDTMOnlineState = "__ZAF__DTMOnlineState";
inline constexpr std::string_view kInterfaceVersion = "__ZAF__InterfaceVersion";
inline constexpr std::string_view kRefreshOnConnect = "__ZAF__RefreshOnConnect";
inline constexpr std::string_view kFDTUserLevel = "__ZAF__FDTUserLevel";
inline constexpr std::string_view kFDTUserName = "__ZAF__FDTUserName";
inline constexpr std::string_view kFDTAdministrator = "__ZAF__FDTAdministrator";
inline constexpr std::string_view kFDTLoginLocation = "__ZAF__FDTLoginLocation";
inline constexpr std::string_view kFDTOEMService = "__ZAF__FDTOEMService";
inline constexpr std::string_view kFDTProjectName = "__ZAF__FDTProjectName";
inline constexpr std::string_view kFDTSessionDescription = "__ZAF__FDTSessionDescription";
inline constexpr std::string_view kBusCategory = "__ZAF__BUSCATEGORY";
inline constexpr std::string_view kFDTDTMState = "__ZAF__FDTDTMState";
inline constexpr std::string_view kRetryNumber = "__ZAF__RETRYNO";
inline constexpr std::string_view kReconnectRetryNumber =
    "__ZAF__ZAFsingleStorage_RECONNECTRETRYNO";
inline constexpr std::string_view kDataSetState = "__ZAF__DATASETSTATE";
inline constexpr std::string_view kDataSetLockState = "__ZAF__DATASETLOCKSTATE";
inline constexpr std::string_view kStorageState = "__ZAF__STORAGESTATE";
inline constexpr std::string_view kUploadVariables = "__ZAF__upload_variables";
inline constexpr std::string_view kUploadVariablesExt = "__ZAF__upload_variables_ext";
inline constexpr std::string_view kUploadVariablesDyn = "__ZAF__upload_variables_dyn";
inline constexpr std::string_view kProcessVariables = "__ZAF__process_variables";
inline constexpr std::string_view kTransmitterStatus = "__ZAF__transmitter_status";
inline constexpr std::string_view kStatusDisplay = "__ZAF__status_display";
inline constexpr std::string_view kConnectionMenu = "__ZAF__connection_menu";
inline constexpr std::string_view kRefreshDataSet = "__ZAF__METHOD_REFRESH_DATASET";
inline constexpr std::string_view kResetCcfMethod = "__ZAF__ResetCCFMethod";
inline constexpr std::string_view kEepromCtrlMethod = "__ZAF__EEPROMCtrlMethod";
inline constexpr std::string_view kInitUnitTable = "__ZAF__init_unit_table";

}  // namespace ZAFHartTypes::internal_names
