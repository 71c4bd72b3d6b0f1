#pragma once

#include <cstdint>

#include "dtmkit/VariableBuilder.h"

// Tables that all HART devices share, from the HART Common Tables (TS20183); each
// list is made once per process. Texts are English and German.
namespace hart {

using ZAFHartTypes::dtmkit::Bits;
using ZAFHartTypes::dtmkit::Enums;

// Engineering unit codes (table 2) that descriptions name.
enum class Unit : std::int32_t {
  DegreesCelsius = 32,
  DegreesFahrenheit = 33,
  DegreesRankine = 34,
  Kelvin = 35,
  Millivolts = 36,
  Ohms = 37,
  Milliamperes = 39,
  Seconds = 51,
  Percent = 57,
  Volts = 58,
  Kiloohms = 163,
  NotUsed = 250,
};
// A list of those units, in the order given.
Enums Units(std::initializer_list<Unit> units);
const Enums& AllUnits();  // table 2, for devices that may measure anything

const Enums& ManufacturerCodes();              // table 8; only the codes that stand for no maker
const Enums& DeviceProfileCodes();             // table 57
const Enums& PhysicalSignalingCodes();         // table 10
const Enums& LoopCurrentModeCodes();           // table 16
const Enums& WriteProtectCodes();              // table 7
const Enums& AlarmSelectionCodes();            // table 6
const Enums& TransferFunctionCodes();          // table 3
const Enums& DeviceVariableClassifications();  // table 21
const Enums& ProcessDataStatusCodes();         // table A-3, bits 7 and 6 of a status byte
const Enums& LimitStatusCodes();               // table A-3, bits 5 and 4
const Enums& DeviceOperatingModes();           // table 14: only 0 is defined
const Enums& BurstModeControlCodes();          // table 18

const Bits& DeviceStatusBits();          // field device status, Command Summary (TS20099) 7.4.2
const Bits& ExtendedDeviceStatusBits();  // table 17
const Bits& DeviceFlagBits();            // table 11
const Bits& AnalogChannelFlagBits();     // table 26
const Bits& AnalogChannelBits();         // table 27, channels that are saturated or fixed
const Bits& StandardizedStatus0Bits();   // table 29
const Bits& StandardizedStatus1Bits();   // table 30
const Bits& StandardizedStatus2Bits();   // table 31
const Bits& StandardizedStatus3Bits();   // table 32
const Bits& DeviceFamilyStatusBits();    // table A-3, bits 3 to 0

// A date as its three bytes make it: day, month, year - 1900.
constexpr std::int32_t Date(int day, int month, int year) {
  return day << 16 | month << 8 | (year - 1900);
}

}  // namespace hart
