#include "common/HartTables.h"
#include "sampletemperature/Description.h"

namespace sampletemperature {
namespace {

void DescribeStatusByte(DeviceDescription& dd, std::string_view name, SharedText label,
                        const Bits& bits) {
  dd.Variable(name)
      .Label(std::move(label))
      .Help("Status of the device, one bit each|de|Status des Geräts, je ein Bit")
      .BitEnumerated(1, bits)
      .ReadOnly()
      .Dynamic();
}

// The device's own status bytes of command 48.
void DescribeOwnStatus(DeviceDescription& dd) {
  DescribeStatusByte(dd, "device_specific_status_0", "Sensor status|de|Sensorstatus",
                     MakeBits({{0x01, "Sensor broken|de|Sensorbruch"},
                               {0x02, "Sensor short-circuited|de|Sensorkurzschluss"},
                               {0x04, "Sensor below its range|de|Sensor unter dem Bereich"},
                               {0x08, "Sensor above its range|de|Sensor über dem Bereich"},
                               {0x10, "Wire resistance too high|de|Leitungswiderstand zu hoch"},
                               {0x20, "Sensor drift|de|Sensordrift"}}));
  DescribeStatusByte(dd, "device_specific_status_1", "Cold junction status|de|Vergleichsstelle",
                     MakeBits({{0x01, "Cold junction broken|de|Vergleichsstelle defekt"},
                               {0x02, "Cold junction too cold|de|Vergleichsstelle zu kalt"},
                               {0x04, "Cold junction too warm|de|Vergleichsstelle zu warm"}}));
  DescribeStatusByte(dd, "device_specific_status_2", "Electronics status|de|Elektronikstatus",
                     MakeBits({{0x01, "Converter defect|de|Wandler defekt"},
                               {0x02, "Reference voltage off|de|Referenzspannung falsch"},
                               {0x04, "Electronics too warm|de|Elektronik zu warm"}}));
  DescribeStatusByte(
      dd, "device_specific_status_3", "Configuration status|de|Konfigurationsstatus",
      MakeBits({{0x01, "Range outside the limits|de|Messbereich außerhalb"},
                {0x02, "Span too small|de|Messspanne zu klein"},
                {0x04, "Linearisation not rising|de|Linearisierung nicht steigend"}}));
  DescribeStatusByte(dd, "device_specific_status_4", "Output status|de|Ausgangsstatus",
                     MakeBits({{0x01, "Low alarm current|de|Unterer Alarmstrom"},
                               {0x02, "High alarm current|de|Oberer Alarmstrom"}}));
  DescribeStatusByte(dd, "device_specific_status_5", "Maintenance status|de|Wartungsstatus",
                     MakeBits({{0x01, "Service due|de|Wartung fällig"},
                               {0x02, "Calibration due|de|Kalibrierung fällig"}}));
}

}  // namespace

void DescribeStatusVariables(DeviceDescription& dd) {
  dd.Variable(kResponseCode)
      .Label("Response code|de|Antwortcode")
      .Help("First byte of every reply|de|Erstes Byte jeder Antwort")
      .Unsigned(1)
      .ReadOnly()
      .Dynamic();
  DescribeStatusByte(dd, kDeviceStatus, "Device status|de|Gerätestatus", hart::DeviceStatusBits());
  DescribeStatusByte(dd, "extended_device_status",
                     "Extended device status|de|"
                     "Erweiterter Gerätestatus",
                     hart::ExtendedDeviceStatusBits());
  DescribeOwnStatus(dd);
  dd.Variable("device_operating_mode")
      .Label("Operating mode|de|Betriebsart")
      .Help("What the device is doing|de|Was das Gerät gerade tut")
      .Enumerated(1, hart::DeviceOperatingModes())
      .ReadOnly()
      .Dynamic();
  DescribeStatusByte(dd, "standardized_status_0", "Standardized status 0|de|Standardstatus 0",
                     hart::StandardizedStatus0Bits());
  DescribeStatusByte(dd, "standardized_status_1", "Standardized status 1|de|Standardstatus 1",
                     hart::StandardizedStatus1Bits());
  DescribeStatusByte(dd, "standardized_status_2", "Standardized status 2|de|Standardstatus 2",
                     hart::StandardizedStatus2Bits());
  DescribeStatusByte(dd, "standardized_status_3", "Standardized status 3|de|Standardstatus 3",
                     hart::StandardizedStatus3Bits());
  DescribeStatusByte(dd, "analog_channel_saturated",
                     "Saturated analog channels|de|Gesättigte Analogkanäle",
                     hart::AnalogChannelBits());
  DescribeStatusByte(dd, "analog_channel_fixed", "Fixed analog channels|de|Feste Analogkanäle",
                     hart::AnalogChannelBits());
}

}  // namespace sampletemperature
