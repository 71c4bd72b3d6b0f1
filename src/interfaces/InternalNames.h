#pragma once

#include <string_view>

// Names of internal items: library-held variables, menus and methods that every DTM has unless its
// DD defines them itself. A frame sets those of the session (FDT…, BusCategory, DataSetLockState);
// the library sets the progress, the online state, DataSetState and LastCommunicationError.
namespace ZAFHartTypes::internal_names {

inline constexpr std::string_view kPrefix = "__ZAF__";
// Seconds after which dynamic, and other, values are read anew; 0: never.
inline constexpr std::string_view kDynAvailTime = "__ZAF__DynAvailTime";
inline constexpr std::string_view kStaticAvailTime = "__ZAF__StaticAvailTime";
// Of the operation on the whole data set that runs: percent, -1 when none does; its title; the
// step, which is for methods.
inline constexpr std::string_view kProgressValue = "__ZAF__ProgressValue";
inline constexpr std::string_view kProgressTitle = "__ZAF__ProgressTitle";
inline constexpr std::string_view kProgressSubTitle = "__ZAF__ProgressSubTitle";
// Multilingual; "" after a command that went well.
inline constexpr std::string_view kLastCommunicationError = "__ZAF__LastCommunicationError";
// OnlineMode and DtmOnlineState.
inline constexpr std::string_view kOnlineMode = "__ZAF__OnlineMode";
inline constexpr std::string_view kDTMOnlineState = "__ZAF__DTMOnlineState";
// Of the frame: 1 for FDT 1.2, 252 while unknown. RefreshOnConnect is valid with 1 only.
inline constexpr std::string_view kInterfaceVersion = "__ZAF__InterfaceVersion";
// 1: the frame is to load the data set when it connects; the library does not.
inline constexpr std::string_view kRefreshOnConnect = "__ZAF__RefreshOnConnect";
// UserLevel, and who works on what; for the menus and methods of the DTM.
inline constexpr std::string_view kFDTUserLevel = "__ZAF__FDTUserLevel";
inline constexpr std::string_view kFDTUserName = "__ZAF__FDTUserName";
inline constexpr std::string_view kFDTAdministrator = "__ZAF__FDTAdministrator";
inline constexpr std::string_view kFDTLoginLocation = "__ZAF__FDTLoginLocation";
inline constexpr std::string_view kFDTOEMService = "__ZAF__FDTOEMService";
inline constexpr std::string_view kFDTProjectName = "__ZAF__FDTProjectName";
inline constexpr std::string_view kFDTSessionDescription = "__ZAF__FDTSessionDescription";
inline constexpr std::string_view kBusCategory = "__ZAF__BUSCATEGORY";
inline constexpr std::string_view kFDTDTMState = "__ZAF__FDTDTMState";
// Times that a busy device is asked again, 5 to 100 (see IBusyRetrying); times that a device which
// has been there before is looked for again, in one go.
inline constexpr std::string_view kRetryNumber = "__ZAF__RETRYNO";
inline constexpr std::string_view kReconnectRetryNumber =
    "__ZAF__ZAFsingleStorage_RECONNECTRETRYNO";
// DataSetState; 0 unlocked, 1 and 2 locked: all menus are read-only; 0 transient, 1 persistent.
inline constexpr std::string_view kDataSetState = "__ZAF__DATASETSTATE";
inline constexpr std::string_view kDataSetLockState = "__ZAF__DATASETLOCKSTATE";
inline constexpr std::string_view kStorageState = "__ZAF__STORAGESTATE";
// Menus that are built anew from the device's own menus and commands.
inline constexpr std::string_view kUploadVariables = "__ZAF__upload_variables";
inline constexpr std::string_view kUploadVariablesExt = "__ZAF__upload_variables_ext";
inline constexpr std::string_view kUploadVariablesDyn = "__ZAF__upload_variables_dyn";
inline constexpr std::string_view kProcessVariables = "__ZAF__process_variables";
inline constexpr std::string_view kTransmitterStatus = "__ZAF__transmitter_status";
inline constexpr std::string_view kStatusDisplay = "__ZAF__status_display";
inline constexpr std::string_view kConnectionMenu = "__ZAF__connection_menu";
// Methods: the library's own; those that a device may define.
inline constexpr std::string_view kRefreshDataSet = "__ZAF__METHOD_REFRESH_DATASET";
inline constexpr std::string_view kResetCcfMethod = "__ZAF__ResetCCFMethod";
inline constexpr std::string_view kEepromCtrlMethod = "__ZAF__EEPROMCtrlMethod";
inline constexpr std::string_view kInitUnitTable = "__ZAF__init_unit_table";

}  // namespace ZAFHartTypes::internal_names
