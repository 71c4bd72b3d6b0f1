#include "fdtobjects/InternalEnumerations.h"

namespace ZAFHartLib {
namespace {

constexpr EnumRow kDynamicRefreshRows[] = {{0, idDynamicRefreshNone}, {5, idDynamicRefresh5s},
                                           {10, idDynamicRefresh10s}, {20, idDynamicRefresh20s},
                                           {30, idDynamicRefresh30s}, {60, idDynamicRefresh60s}};

constexpr EnumRow kStaticRefreshRows[] = {
    {0, idStaticRefreshNone},    {120, idStaticRefresh2min},   {300, idStaticRefresh5min},
    {600, idStaticRefresh10min}, {1200, idStaticRefresh20min}, {1800, idStaticRefresh30min},
    {3600, idStaticRefresh60min}};

constexpr EnumRow kOnlineModeRows[] = {
    {0, idModeOffline}, {1, idModeOnline}, {2, idModeOnlineSynchronous}};

constexpr EnumRow kDtmOnlineStateRows[] = {
    {0, idNotConnected},         {1, idNotConnected},   {2, idNoDeviceFound},
    {3, idWrongDevice},          {20, idConnecting},    {21, idCheckDeviceType},
    {10, idPreparingDisconnect}, {11, idDisconnecting}, {100, idConnected}};

constexpr EnumRow kInterfaceVersionRows[] = {{252, "unknown"}, {0, "PACTware IDL"}, {1, "FDT 1.2"}};

constexpr EnumRow kRefreshOnConnectRows[] = {{0, idRefreshOnConnectNone},
                                             {1, idRefreshOnConnectAll}};

constexpr EnumRow kUserLevelRows[] = {
    {0, "Observer"}, {1, "Operator"}, {2, "Maintenance"}, {3, "Planning Engineer"}};

constexpr EnumRow kNoYesRows[] = {{0, "No"}, {1, "Yes"}};

constexpr EnumRow kBusCategoryRows[] = {{1, "036D1498-387B-11D4-86E1-00E0987270B9", "HART"},
                                        {2, "036D1499-387B-11D4-86E1-00E0987270B9", "PROFIBUS"},
                                        {3, "30BB6757-BCFF-4744-8C75-A89E0A4A354C", "IPC"},
                                        {4, "7EEE3704-A696-4824-8D25-28675B46E2EB", "PCP"},
                                        {5, "E7584C3F-B457-404d-AC58-CFEB3D3245BB", "P2P"},
                                        {6, "9AF09744-3B1F-4791-82AF-EC253B10C68E", "ASI"},
                                        {7, "3ADCBF59-94CD-47E8-A18C-506B4EDE2A2A", "CDI"}};

constexpr EnumRow kDtmStateRows[] = {
    {0, "Up"},           {1, "New Created"}, {2, "New Enabled"},       {3, "Existing Created"},
    {4, "Running"},      {5, "Configured"},  {6, "Going Offline"},     {7, "Online"},
    {8, "Going Online"}, {9, "Destroyed"},   {10, "CommunicationSet"}, {11, "Zombie"}};

constexpr EnumRow kLockStateRows[] = {{0, "Unlocked"}, {1, "Locked"}, {2, "Locked (Modal)"}};

constexpr EnumRow kOnlineActionRows[] = {{0, "In Progress"}, {1, "Completed"}};

constexpr EnumRow kEnabledRows[] = {{0, "Disabled"}, {1, "Enabled"}};

constexpr EnumRow kDataSetStateRows[] = {{0, "Default"},
                                         {1, "ValidModified"},
                                         {2, "InvalidModified"},
                                         {3, "AllDataLoaded"},
                                         {4, "Zombie"}};

constexpr EnumRow kStorageStateRows[] = {{0, "Transient"}, {1, "Persistent"}};

}  // namespace

namespace internal_enums {
constinit const EnumRows kDynamicRefresh = kDynamicRefreshRows;
constinit const EnumRows kStaticRefresh = kStaticRefreshRows;
constinit const EnumRows kOnlineMode = kOnlineModeRows;
constinit const EnumRows kDtmOnlineState = kDtmOnlineStateRows;
constinit const EnumRows kInterfaceVersion = kInterfaceVersionRows;
constinit const EnumRows kRefreshOnConnect = kRefreshOnConnectRows;
constinit const EnumRows kUserLevel = kUserLevelRows;
constinit const EnumRows kNoYes = kNoYesRows;
constinit const EnumRows kBusCategory = kBusCategoryRows;
constinit const EnumRows kDtmState = kDtmStateRows;
constinit const EnumRows kLockState = kLockStateRows;
constinit const EnumRows kOnlineAction = kOnlineActionRows;
constinit const EnumRows kEnabled = kEnabledRows;
constinit const EnumRows kDataSetState = kDataSetStateRows;
constinit const EnumRows kStorageState = kStorageStateRows;
}  // namespace internal_enums

ZAFHartTypes::EnumList MakeEnumList(EnumRows rows) {
  ZAFHartTypes::EnumList list;
  for (const EnumRow& row : rows) {
    list.Add({row.value, row.description.Text(), std::string(row.help)});
  }
  return list;
}

}  // namespace ZAFHartLib
