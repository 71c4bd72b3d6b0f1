#include "fdtobjects/InternalVariableRows.h"

#include "interfaces/InternalNames.h"

namespace ZAFHartLib {

using ZAFHartTypes::Definition;
using ZAFHartTypes::IDDKernel;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::TypeCode;
using ZAFHartTypes::Variant;
using ZAFHartTypes::VariantType;
namespace names = ZAFHartTypes::internal_names;

namespace {

// "__ZAF__RefreshOnConnect" is an option of frames with the interface "FDT 1.2".
bool FrameHasFdtInterface(IDDKernel& kernel) {
  constexpr std::int32_t kFdt12 = 1;
  static const auto version = Definition::Define(names::kInterfaceVersion, ObjectKind::Variable);
  const auto variable = kernel.ReadVariable(version);
  return variable && variable->Value() == Variant(kFdt12);
}

constexpr DefaultRow Int16(double number) {
  return {VariantType::Int16, number};
}
constexpr DefaultRow Int32(double number) {
  return {VariantType::Int32, number};
}
constexpr DefaultRow kMinusOne{VariantType::Double, -1};
constexpr DefaultRow kEmptyText{VariantType::String};

constexpr auto kEnum = TypeCode::Enumerated;
constexpr auto kText = TypeCode::Ascii;
constexpr auto kInteger = TypeCode::Integer;

constexpr InternalVariableRow kRows[] = {
    {.name = names::kDynAvailTime,
     .label = idDynamicRefresh,
     .help = idDynamicRefreshHelp,
     .type = kEnum,
     .size = 4,
     .maxEnum = 60,
     .items = &internal_enums::kDynamicRefresh,
     .defaultValue = Int16(10)},
    {.name = names::kStaticAvailTime,
     .label = idStaticRefresh,
     .help = idStaticRefreshHelp,
     .type = kEnum,
     .size = 4,
     .maxEnum = 3600,
     .items = &internal_enums::kStaticRefresh,
     .defaultValue = Int16(0)},
    {.name = names::kProgressValue,
     .label = idProgress,
     .type = TypeCode::Double,
     .defaultValue = kMinusOne},
    {.name = names::kProgressTitle, .label = idAction, .type = kText, .size = 512},
    {.name = names::kProgressSubTitle, .label = idStep},
    {.name = names::kLastCommunicationError,
     .label = idLastCommunicationError,
     .type = kText,
     .size = 512},
    {.name = names::kOnlineMode,
     .label = idOnlineMode,
     .type = kEnum,
     .maxEnum = 2,
     .items = &internal_enums::kOnlineMode,
     .defaultValue = Int16(0),
     .availableFromDefault = true},
    {.name = names::kDTMOnlineState,
     .label = idOnlineMode,
     .type = kEnum,
     .maxEnum = 100,
     .items = &internal_enums::kDtmOnlineState,
     .defaultValue = Int16(0),
     .availableFromDefault = true},
    {.name = names::kInterfaceVersion,
     .label = "Interface Version",
     .type = kEnum,
     .maxEnum = 252,
     .items = &internal_enums::kInterfaceVersion,
     .defaultValue = Int32(252),
     .availableFromDefault = true},
    {.name = names::kRefreshOnConnect,
     .label = idRefreshOnConnect,
     .help = idRefreshOnConnectHelp,
     .type = kEnum,
     .maxEnum = 1,
     .items = &internal_enums::kRefreshOnConnect,
     .defaultValue = Int16(1),
     .availableFromDefault = true,
     .validity = FrameHasFdtInterface},
    {.name = names::kFDTUserLevel,
     .label = "User Level",
     .type = kEnum,
     .maxEnum = 3,
     .items = &internal_enums::kUserLevel,
     .defaultValue = Int16(0),
     .availableFromDefault = true},
    {.name = names::kFDTUserName,
     .label = "User Name",
     .type = kText,
     .size = 50,
     .defaultValue = kEmptyText,
     .availableFromDefault = true},
    {.name = names::kFDTAdministrator,
     .label = "Administrator",
     .type = kEnum,
     .maxEnum = 1,
     .items = &internal_enums::kNoYes,
     .defaultValue = Int16(0),
     .availableFromDefault = true},
    {.name = names::kFDTLoginLocation,
     .label = "Login Location",
     .type = kText,
     .size = 100,
     .defaultValue = kEmptyText,
     .availableFromDefault = true},
    {.name = names::kFDTOEMService,
     .label = "OEM Service",
     .type = kEnum,
     .maxEnum = 1,
     .items = &internal_enums::kNoYes,
     .defaultValue = Int16(0),
     .availableFromDefault = true},
    {.name = names::kFDTProjectName,
     .label = "Project Name",
     .type = kText,
     .size = 100,
     .defaultValue = kEmptyText,
     .availableFromDefault = true},
    {.name = names::kFDTSessionDescription,
     .label = "Session Description",
     .type = kText,
     .size = 200,
     .defaultValue = kEmptyText,
     .availableFromDefault = true},
    {.name = names::kBusCategory,
     .label = "Bus Type",
     .help = "HART - 1, PROFIBUS(ALL) - 2, IPC - 3, PCP - 4, P2P - 5, ASI - 6, CDI - 7",
     .type = kEnum,
     .maxEnum = 7,
     .items = &internal_enums::kBusCategory,
     .defaultValue = Int16(1),
     .availableFromDefault = true},
    {.name = names::kFDTDTMState,
     .label = "FDT DTM State",
     .type = kEnum,
     .maxEnum = 11,
     .items = &internal_enums::kDtmState,
     .defaultValue = Int32(0)},
    {.name = names::kDataSetLockState,
     .label = "DataSet Lock/Unlock",
     .type = kEnum,
     .maxEnum = 2,
     .items = &internal_enums::kLockState,
     .defaultValue = Int16(0)},
    {.name = "__ZAF__ONLINEACTIONSTATE",
     .label = "Online Action State (Upload/Download)",
     .type = kEnum,
     .maxEnum = 1,
     .items = &internal_enums::kOnlineAction,
     .defaultValue = Int16(1)},
    {.name = "__ZAF__PRIVATEDIALOGENABLED",
     .label = "PrivateDialogEnabled",
     .type = kEnum,
     .maxEnum = 1,
     .items = &internal_enums::kEnabled,
     .defaultValue = Int16(1)},
    {.name = "__ZAF__ACTIVEMODALFUNCTIONID",
     .label = "Active Modal FunctionID",
     .type = kInteger,
     .size = 4,
     .defaultValue = Int16(0)},
    {.name = names::kRetryNumber,
     .label = "Retry No.",
     .help = "The number of retry read variables, when the device is busy",
     .type = TypeCode::Unsigned,
     .size = 1,
     .limits = LimitsRow{5, 100},
     .defaultValue = Int16(5)},
    {.name = names::kDataSetState,
     .label = "DataSet State",
     .type = kEnum,
     .maxEnum = 4,
     .items = &internal_enums::kDataSetState,
     .defaultValue = Int32(0)},
    {.name = names::kStorageState,
     .label = "Storage State",
     .type = kEnum,
     .maxEnum = 1,
     .items = &internal_enums::kStorageState,
     .defaultValue = Int16(0)},
    {.name = "__ZAF__LASTCOMMUNICATIONSTATUS",
     .label = "Last Communication Status",
     .type = kInteger,
     .size = 1,
     .defaultValue = Int16(0)},
    {.name = names::kReconnectRetryNumber,
     .label = "Reconnect Retry No",
     .type = kInteger,
     .size = 2,
     .defaultValue = Int16(2)},
    {.name = "__ZAF__HostLocale",
     .label = "Regional and Language options",
     .type = kInteger,
     .size = 4,
     .defaultValue = Int16(0)},
    {.name = "__ZAF__DISABLEDFUNCTIONIDS",
     .label = "Active function IDs",
     .type = kText,
     .size = 512,
     .defaultValue = kEmptyText,
     .availableFromDefault = true},
};

}  // namespace

Variant DefaultRow::Value() const {
  switch (type) {
    case VariantType::Int16:
      return static_cast<std::int16_t>(number);
    case VariantType::Int32:
      return static_cast<std::int32_t>(number);
    case VariantType::Double:
      return number;
    case VariantType::String:
      return "";
    default:
      return {};
  }
}

std::span<const InternalVariableRow> InternalVariableRows() {
  return kRows;
}

}  // namespace ZAFHartLib
