#include "common/HartItems.h"
#include "common/HartTables.h"

namespace hart {

using namespace ZAFHartTypes;          // NOLINT(google-build-using-namespace)
using namespace ZAFHartTypes::dtmkit;  // NOLINT(google-build-using-namespace)

void DescribeStatusByte(DeviceDescription& dd, std::string_view name, SharedText label,
                        const Bits& bits) {
  dd.Variable(name)
      .Label(std::move(label))
      .Help("Status of the device, one bit each|de|Status des Geräts, je ein Bit")
      .BitEnumerated(1, bits)
      .ReadOnly()
      .Dynamic();
}

void DescribeReplyStatus(DeviceDescription& dd) {
  dd.Variable(kResponseCode)
      .Label("Response code|de|Antwortcode")
      .Help("First byte of every reply|de|Erstes Byte jeder Antwort")
      .Unsigned(1)
      .ReadOnly()
      .Dynamic();
  DescribeStatusByte(dd, kDeviceStatus, "Device status|de|Gerätestatus", DeviceStatusBits());
  DescribeStatusByte(dd, "extended_device_status",
                     "Extended device status|de|"
                     "Erweiterter Gerätestatus",
                     ExtendedDeviceStatusBits());
}

void DescribeStandardizedStatus(DeviceDescription& dd) {
  dd.Variable("device_operating_mode")
      .Label("Operating mode|de|Betriebsart")
      .Help("What the device is doing|de|Was das Gerät gerade tut")
      .Enumerated(1, DeviceOperatingModes())
      .ReadOnly()
      .Dynamic();
  DescribeStatusByte(dd, "standardized_status_0", "Standardized status 0|de|Standardstatus 0",
                     StandardizedStatus0Bits());
  DescribeStatusByte(dd, "standardized_status_1", "Standardized status 1|de|Standardstatus 1",
                     StandardizedStatus1Bits());
  DescribeStatusByte(dd, "standardized_status_2", "Standardized status 2|de|Standardstatus 2",
                     StandardizedStatus2Bits());
  DescribeStatusByte(dd, "standardized_status_3", "Standardized status 3|de|Standardstatus 3",
                     StandardizedStatus3Bits());
  DescribeStatusByte(dd, "analog_channel_saturated",
                     "Saturated analog channels|de|Gesättigte Analogkanäle", AnalogChannelBits());
  DescribeStatusByte(dd, "analog_channel_fixed", "Fixed analog channels|de|Feste Analogkanäle",
                     AnalogChannelBits());
}

void DescribeValueStatus(DeviceDescription& dd, const std::string& name, const std::string& english,
                         const std::string& german) {
  dd.Variable(name + "_classification")
      .Label(english + " classification|de|" + german + " Klassifizierung")
      .Help("Kind of quantity that the device variable is|de|Art der Messgröße")
      .Enumerated(1, DeviceVariableClassifications())
      .ReadOnly();
  dd.Variable(name + "_data_quality")
      .Label(english + " data quality|de|" + german + " Datenqualität")
      .Help("How far the value can be trusted|de|Verlässlichkeit des Wertes")
      .Enumerated(1, ProcessDataStatusCodes())
      .ReadOnly()
      .Dynamic();
  dd.Variable(name + "_limit_status")
      .Label(english + " limit status|de|" + german + " Grenzstatus")
      .Help("Whether the value is held at a limit|de|Ob der Wert an einer Grenze steht")
      .Enumerated(1, LimitStatusCodes())
      .ReadOnly()
      .Dynamic();
  dd.Variable(name + "_family_status")
      .Label(english + " family status|de|" + german + " Familienstatus")
      .Help("Further status bits of the device variable|de|Weitere Statusbits der Gerätevariablen")
      .BitEnumerated(1, DeviceFamilyStatusBits())
      .ReadOnly()
      .Dynamic();
}

void DescribeTimeStamp(DeviceDescription& dd) {
  dd.Variable(kTimeStamp)
      .Label("Time stamp|de|Zeitstempel")
      .Help(
          "Time of measurement in steps of 1/32 ms since midnight|de|"
          "Zeitpunkt der Messung in Schritten von 1/32 ms seit Mitternacht")
      .Unsigned(4)
      .ReadOnly()
      .Dynamic();
}

}  // namespace hart
