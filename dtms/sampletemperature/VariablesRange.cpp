#include "common/HartTables.h"
#include "sampletemperature/Description.h"
#include "sampletemperature/Sensor.h"

namespace sampletemperature {
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
      .Enumerated(1, TemperatureUnits())
      .ReadOnly()
      .OnCompute([](Context& context, Variable& variable) {
        variable.EditTypeInfo().SetEnumItems(PrimaryUnits(SensorOf(context)));
      });
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
      .Enumerated(1, TemperatureUnits())
      .Default(static_cast<std::int32_t>(hart::Unit::DegreesCelsius))
      .OnCompute([](Context& context, Variable& variable) {
        variable.EditTypeInfo().SetEnumItems(PrimaryUnits(SensorOf(context)));
      });
  dd.Variable("upper_range_value")
      .Label("Upper range value|de|Messbereichsende")
      .Help("Value at which the loop current is 20 mA|de|Wert, bei dem der Strom 20 mA ist")
      .Float()
      .Format("8.2f")
      .Default(100.0F)
      .Actions(ActionList::PostEdit, {"update_span"});
  dd.Variable("lower_range_value")
      .Label("Lower range value|de|Messbereichsanfang")
      .Help("Value at which the loop current is 4 mA|de|Wert, bei dem der Strom 4 mA ist")
      .Float()
      .Format("8.2f")
      .Default(0.0F)
      .Actions(ActionList::PostEdit, {"update_span"});
  dd.Variable("damping_value")
      .Label("Damping|de|Dämpfung")
      .Help("Time constant of the primary variable|de|Zeitkonstante des Messwerts")
      .Float()
      .Format("6.2f")
      .Unit("s")
      .Range(0.0F, 60.0F)
      .Default(0.0F)
      .Actions(ActionList::PreWrite, {"round_damping"});
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
      .Enumerated(1, hart::LoopCurrentModeCodes())
      .Default(1)
      .Actions(ActionList::PostWrite, {"warn_of_multi_drop"});
  dd.Variable("transfer_function")
      .Label("Transfer function|de|Übertragungsfunktion")
      .Help("Shape of the loop current over the value|de|Verlauf des Stroms über dem Messwert")
      .Enumerated(1, hart::TransferFunctionCodes())
      .ReadOnly();
  dd.Variable("write_protect")
      .Label("Write protection|de|Schreibschutz")
      .Help("Whether the device refuses changes|de|Ob das Gerät Änderungen ablehnt")
      .Enumerated(1, hart::WriteProtectCodes())
      .ReadOnly();
  dd.Variable("analog_channel_flags")
      .Label("Analog channel flags|de|Merkmale des Analogkanals")
      .Help("Properties of the analog channel|de|Eigenschaften des Analogkanals")
      .BitEnumerated(1, hart::AnalogChannelFlagBits())
      .ReadOnly();
}

}  // namespace sampletemperature
