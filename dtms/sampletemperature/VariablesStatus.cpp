#include "common/HartItems.h"
#include "sampletemperature/Description.h"

namespace sampletemperature {
namespace {

// The device's own status bytes of command 48.
void DescribeOwnStatus(DeviceDescription& dd) {
  hart::DescribeStatusByte(
      dd, "device_specific_status_0", "Sensor status|de|Sensorstatus",
      MakeBits({{0x01, "Sensor broken|de|Sensorbruch"},
                {0x02, "Sensor short-circuited|de|Sensorkurzschluss"},
                {0x04, "Sensor below its range|de|Sensor unter dem Bereich"},
                {0x08, "Sensor above its range|de|Sensor über dem Bereich"},
                {0x10, "Wire resistance too high|de|Leitungswiderstand zu hoch"},
                {0x20, "Sensor drift|de|Sensordrift"}}));
  hart::DescribeStatusByte(
      dd, "device_specific_status_1", "Cold junction status|de|Vergleichsstelle",
      MakeBits({{0x01, "Cold junction broken|de|Vergleichsstelle defekt"},
                {0x02, "Cold junction too cold|de|Vergleichsstelle zu kalt"},
                {0x04, "Cold junction too warm|de|Vergleichsstelle zu warm"}}));
  hart::DescribeStatusByte(dd, "device_specific_status_2", "Electronics status|de|Elektronikstatus",
                           MakeBits({{0x01, "Converter defect|de|Wandler defekt"},
                                     {0x02, "Reference voltage off|de|Referenzspannung falsch"},
                                     {0x04, "Electronics too warm|de|Elektronik zu warm"}}));
  hart::DescribeStatusByte(
      dd, "device_specific_status_3", "Configuration status|de|Konfigurationsstatus",
      MakeBits({{0x01, "Range outside the limits|de|Messbereich außerhalb"},
                {0x02, "Span too small|de|Messspanne zu klein"},
                {0x04, "Linearisation not rising|de|Linearisierung nicht steigend"}}));
  hart::DescribeStatusByte(dd, "device_specific_status_4", "Output status|de|Ausgangsstatus",
                           MakeBits({{0x01, "Low alarm current|de|Unterer Alarmstrom"},
                                     {0x02, "High alarm current|de|Oberer Alarmstrom"}}));
  hart::DescribeStatusByte(dd, "device_specific_status_5", "Maintenance status|de|Wartungsstatus",
                           MakeBits({{0x01, "Service due|de|Wartung fällig"},
                                     {0x02, "Calibration due|de|Kalibrierung fällig"}}));
}

}  // namespace

void DescribeStatusVariables(DeviceDescription& dd) {
  hart::DescribeReplyStatus(dd);
  DescribeOwnStatus(dd);
  hart::DescribeStandardizedStatus(dd);
}

}  // namespace sampletemperature
