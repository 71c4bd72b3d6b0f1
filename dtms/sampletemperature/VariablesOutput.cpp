#include "common/HartTables.h"
#include "sampletemperature/Description.h"
#include "sampletemperature/Sensor.h"

namespace sampletemperature {
namespace {

// Limits of NAMUR NE 43 as defaults.
void DescribeCurrents(DeviceDescription& dd) {
  const auto describe = [&dd](std::string_view name, SharedText label, float initial, float minimum,
                              float maximum) {
    dd.Variable(name)
        .Label(std::move(label))
        .Help("Loop current|de|Schleifenstrom")
        .Float()
        .Format("6.3f")
        .Unit("mA")
        .Range(minimum, maximum)
        .Default(initial);
  };
  describe("low_alarm_current", "Low alarm current|de|Unterer Alarmstrom", 3.6F, 3.5F, 3.75F);
  describe("high_alarm_current", "High alarm current|de|Oberer Alarmstrom", 22.0F, 20.75F, 23.0F);
  describe("low_saturation_current", "Lower current limit|de|Untere Stromgrenze", 3.8F, 3.7F, 3.9F);
  describe("high_saturation_current", "Upper current limit|de|Obere Stromgrenze", 20.5F, 20.2F,
           20.8F);
}

void DescribeTrim(DeviceDescription& dd) {
  dd.Variable("trim_unit")
      .Label("Trim unit|de|Einheit des Abgleichs")
      .Help("Engineering unit of the trim points|de|Physikalische Einheit der Abgleichpunkte")
      .Enumerated(1, TemperatureUnits())
      .Default(static_cast<std::int32_t>(hart::Unit::DegreesCelsius))
      .OnCompute([](Context& context, Variable& variable) {
        variable.EditTypeInfo().SetEnumItems(PrimaryUnits(SensorOf(context)));
      });
  dd.Variable("lower_trim_point")
      .Label("Lower trim point|de|Unterer Abgleichpunkt")
      .Help("Value at which the sensor was trimmed last|de|Wert des letzten Abgleichs")
      .Float()
      .Format("8.3f")
      .Default(0.0F);
  dd.Variable("upper_trim_point")
      .Label("Upper trim point|de|Oberer Abgleichpunkt")
      .Help("Value at which the sensor was trimmed last|de|Wert des letzten Abgleichs")
      .Float()
      .Format("8.3f")
      .Default(100.0F);
  dd.Variable("trim_date")
      .Label("Trim date|de|Datum des Abgleichs")
      .Help("Day of the last sensor trim|de|Tag des letzten Sensorabgleichs")
      .Date()
      .Default(hart::Date(1, 1, 2000));
  dd.Variable("trim_operator")
      .Label("Trimmed by|de|Abgeglichen von")
      .Help("Who trimmed the sensor last|de|Wer den Sensor zuletzt abgeglichen hat")
      .Ascii(16)
      .Default("factory");
}

}  // namespace

void DescribeOutputVariables(DeviceDescription& dd) {
  DescribeCurrents(dd);
  dd.Variable("alarm_delay")
      .Label("Alarm delay|de|Alarmverzögerung")
      .Help("Time from a fault to the alarm current|de|Zeit von der Störung bis zum Alarmstrom")
      .Unsigned(2)
      .Unit("s")
      .Range(0, 600)
      .Default(0);
  DescribeTrim(dd);
}

}  // namespace sampletemperature
