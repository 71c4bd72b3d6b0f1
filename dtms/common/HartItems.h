#pragma once

#include "dtmkit/dtmkit.h"

// Items that the descriptions of HART devices share: the universal and common practice commands
// whose layout is the same in HART 5, 6 and 7, with their variables, and the methods on them. A DTM
// calls what its device has, and says the rest of single variables with DeviceDescription::Known:
//
//   hart::DescribeIdentityVariables(dd);
//   dd.Known("tag").Default("TT-0000");
//
// Names are those that HART device descriptions have in common.
namespace hart {

using ZAFHartTypes::SharedText;
using ZAFHartTypes::dtmkit::Bits;
using ZAFHartTypes::dtmkit::CommandBuilder;
using ZAFHartTypes::dtmkit::Condition;
using ZAFHartTypes::dtmkit::DeviceDescription;

// --- variables ---
void DescribeIdentityVariables(DeviceDescription& dd);  // what the device is, its names
void DescribeLoopValues(DeviceDescription& dd);         // loop current, percent of range: live
void DescribeRangeVariables(DeviceDescription& dd);     // sensor limits, range, output
void DescribeLoopVariables(DeviceDescription& dd);      // of the commands on the loop current
// A status byte of one bit per message.
void DescribeStatusByte(DeviceDescription& dd, std::string_view name, SharedText label,
                        const Bits& bits);
void DescribeReplyStatus(DeviceDescription& dd);         // what every reply starts with
void DescribeStandardizedStatus(DeviceDescription& dd);  // bytes 7 to 13 of command 48
// Status of a measured value, of commands 8 and 9: name_classification, …_data_quality,
// …_limit_status, …_family_status. The value's label in English and German.
void DescribeValueStatus(DeviceDescription& dd, const std::string& name, const std::string& english,
                         const std::string& german);
// When the values of command 9 were measured.
void DescribeTimeStamp(DeviceDescription& dd);
inline constexpr std::string_view kTimeStamp = "data_time_stamp";

// --- commands, by HART command numbers ---
void DescribeMeasurementCommands(DeviceDescription& dd);           // 1, 2, 3, 8
void DescribeNameCommands(DeviceDescription& dd);                  // 12, 13, 14, 16, 20
void DescribeWriteCommands(DeviceDescription& dd);                 // 17, 18, 19, 22, 38
CommandBuilder DescribeReadDeviceVariable(DeviceDescription& dd);  // 33
void DescribeUnitCommands(DeviceDescription& dd);                  // 44, 53
void DescribeReadAssignments(DeviceDescription& dd);               // 50
void DescribeRangeCommands(DeviceDescription& dd);                 // 34, 35, 36, 37, 43
void DescribeLoopCurrentCommands(DeviceDescription& dd);           // 40, 45, 46
void DescribeDeviceHandling(DeviceDescription& dd);                // 41, 42, 49, 59
// Arrays and index variables that the commands on device variables name; a member of an element is
// called VALUE, UNITS, …
inline constexpr std::string_view kDeviceVariables = "device_variables";
inline constexpr std::string_view kDeviceVariableCode = "device_variable_code";
// The response codes of command 9 besides those of every reading command.
ZAFHartTypes::dtmkit::SharedCodes DeviceVariableCodes();

// --- methods ---
// "loop_test" and "loop_current_trim", on the variables and commands above.
void DescribeLoopMethods(DeviceDescription& dd, const Condition& hasLoopCurrent);
// "self_test" with the messages of the status variables device_specific_status_0 to _5.
void DescribeSelfTest(DeviceDescription& dd);
void DescribeDeviceReset(DeviceDescription& dd);  // "device_reset"

}  // namespace hart
