#include "common/HartItems.h"
#include "common/HartTables.h"

namespace hart {

using namespace ZAFHartTypes;          // NOLINT(google-build-using-namespace)
using namespace ZAFHartTypes::dtmkit;  // NOLINT(google-build-using-namespace)

namespace {

void DescribeTransducer(DeviceDescription& dd) {
  dd.Variable("transducer_serial_number")
      .Label("Sensor serial number|de|Seriennummer des Sensors")
      .Help("Number of the sensor that is connected|de|Nummer des angeschlossenen Sensors")
      .Unsigned(3)
      .Default(0);
  dd.Variable("transducer_limits_unit")
      .Label("Sensor limits unit|de|Einheit der Sensorgrenzen")
      .Help("Engineering unit of the sensor limits|de|Physikalische Einheit der Sensorgrenzen")
      .Enumerated(1, AllUnits())
      .ReadOnly();
  dd.Variable("upper_transducer_limit")
      .Label("Upper sensor limit|de|Obere Sensorgrenze")
      .Help("Greatest value that the sensor can measure|de|Größter messbarer Wert")
      .Float()
      .Format("8.2f")
      .ReadOnly();
  dd.Variable("lower_transducer_limit")
      .Label("Lower sensor limit|de|Untere Sensorgrenze")
      .Help("Smallest value that the sensor can measure|de|Kleinster messbarer Wert")
      .Float()
      .Format("8.2f")
      .ReadOnly();
  dd.Variable("minimum_span")
      .Label("Minimum span|de|Kleinste Messspanne")
      .Help("Least difference of the range values|de|Kleinster Abstand der Messbereichswerte")
      .Float()
      .Format("8.2f")
      .ReadOnly();
}

void DescribeRange(DeviceDescription& dd) {
  dd.Variable("range_unit")
      .Label("Range unit|de|Einheit des Messbereichs")
      .Help("Engineering unit of the range values|de|Physikalische Einheit der Bereichswerte")
      .Enumerated(1, AllUnits());
  dd.Variable("upper_range_value")
      .Label("Upper range value|de|Messbereichsende")
      .Help("Value at which the loop current is 20 mA|de|Wert, bei dem der Strom 20 mA ist")
      .Float()
      .Format("8.2f");
  dd.Variable("lower_range_value")
      .Label("Lower range value|de|Messbereichsanfang")
      .Help("Value at which the loop current is 4 mA|de|Wert, bei dem der Strom 4 mA ist")
      .Float()
      .Format("8.2f");
  dd.Variable("damping_value")
      .Label("Damping|de|Dämpfung")
      .Help("Time constant of the primary variable|de|Zeitkonstante des Messwerts")
      .Float()
      .Format("6.2f")
      .Unit("s");
}

}  // namespace

void DescribeRangeVariables(DeviceDescription& dd) {
  DescribeTransducer(dd);
  DescribeRange(dd);
  dd.Variable("loop_current_mode")
      .Label("Loop current mode|de|Betriebsart des Schleifenstroms")
      .Help(
          "Whether the loop current follows the primary variable|de|"
          "Ob der Schleifenstrom dem Messwert folgt")
      .Enumerated(1, LoopCurrentModeCodes())
      .Default(1);
  dd.Variable("transfer_function")
      .Label("Transfer function|de|Übertragungsfunktion")
      .Help("Shape of the loop current over the value|de|Verlauf des Stroms über dem Messwert")
      .Enumerated(1, TransferFunctionCodes());
  dd.Variable("write_protect")
      .Label("Write protection|de|Schreibschutz")
      .Help("Whether the device refuses changes|de|Ob das Gerät Änderungen ablehnt")
      .Enumerated(1, WriteProtectCodes())
      .ReadOnly();
  dd.Variable("analog_channel_flags")
      .Label("Analog channel flags|de|Merkmale des Analogkanals")
      .Help("Properties of the analog channel|de|Eigenschaften des Analogkanals")
      .BitEnumerated(1, AnalogChannelFlagBits())
      .ReadOnly();
  dd.Variable("alarm_selection")
      .Label("Alarm|de|Alarmverhalten")
      .Help(
          "What the loop current does in case of a fault|de|"
          "Was der Schleifenstrom bei einer Störung tut")
      .Enumerated(1, AlarmSelectionCodes());
}

}  // namespace hart
