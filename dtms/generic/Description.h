#pragma once

#include "common/HartItems.h"

// The device description of any HART device. Validity and layouts follow the revision of the
// universal commands (see Revision.h).
namespace generic {

using namespace ZAFHartTypes;          // NOLINT(google-build-using-namespace)
using namespace ZAFHartTypes::dtmkit;  // NOLINT(google-build-using-namespace)

// The process's one description.
const Catalogue& Description();

void DescribeDeviceVariables(DeviceDescription& dd);         // array and collections; first of all
void DescribeIdentity(DeviceDescription& dd);                // commands 0, 6, 7, 11 to 22, 38, 59
void DescribeProcessVariables(DeviceDescription& dd);        // commands 1, 2, 3, 8, 44, 50, 51
void DescribeOutput(DeviceDescription& dd);                  // commands 14, 15, 34 to 37, 43, 47
void DescribeStatus(DeviceDescription& dd);                  // command 48
void DescribeBurst(DeviceDescription& dd);                   // commands 105, 108, 109
void DescribeDeviceVariableCommands(DeviceDescription& dd);  // 9, 33, 53, 54, 55
void DescribeRelations(DeviceDescription& dd);
void DescribeMethods(DeviceDescription& dd);
void DescribeMenus(DeviceDescription& dd);

}  // namespace generic
