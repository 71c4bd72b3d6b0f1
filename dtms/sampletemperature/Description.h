#pragma once

#include "dtmkit/dtmkit.h"

// The device description of a two-wire temperature transmitter of no maker, HART 7. One function
// for each subject; names ending in "…Commands" give the HART command numbers.
namespace sampletemperature {

using namespace ZAFHartTypes;
using namespace ZAFHartTypes::dtmkit;

// The process's one description.
const Catalogue& Description();

void DescribeDeviceVariables(DeviceDescription& dd);         // the array of device variables
void DescribeIdentityVariables(DeviceDescription& dd);       // what the device is, its names
void DescribeProcessVariables(DeviceDescription& dd);        // measured values
void DescribeStatusVariables(DeviceDescription& dd);         // status bytes
void DescribeRangeVariables(DeviceDescription& dd);          // loop current, ranges, damping
void DescribeSensorVariables(DeviceDescription& dd);         // sensor and its compensation
void DescribeOutputVariables(DeviceDescription& dd);         // alarm currents, trim points
void DescribeLinearisationVariables(DeviceDescription& dd);  // table of points
void DescribeServiceVariables(DeviceDescription& dd);        // service notes, operating data
void DescribeLocalVariables(DeviceDescription& dd);          // held by the DTM

void DescribeUniversalCommands(DeviceDescription& dd);
void DescribeDeviceCommands(DeviceDescription& dd);

void DescribeRelations(DeviceDescription& dd);
void DescribeUnitTable(DeviceDescription& dd);
void DescribeActions(DeviceDescription& dd);        // of variables and edit displays
void DescribeTrimMethods(DeviceDescription& dd);    // trim of the sensor
void DescribeStatusMethods(DeviceDescription& dd);  // self test, status bits
void DescribeDeviceMethods(DeviceDescription& dd);  // reset, live values

void DescribeEditDisplays(DeviceDescription& dd);
void DescribeUploadMenu(DeviceDescription& dd);
void DescribeMenus(DeviceDescription& dd);

}  // namespace sampletemperature
