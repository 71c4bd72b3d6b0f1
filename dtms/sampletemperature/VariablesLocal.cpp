#include <cmath>

#include "common/HartItems.h"
#include "common/HartTables.h"
#include "sampletemperature/Description.h"

namespace sampletemperature {

// Held by the DTM: what the user or a method gives to a command, what is calculated, and what the
// user keeps for himself. The types of text and time that have no place on the wire are here.
namespace {

void DescribeTrimRequest(DeviceDescription& dd) {
  dd.Variable("trim_point")
      .Label("Trim point|de|Abgleichpunkt")
      .Help("Point that a trim command is about|de|Punkt eines Abgleichkommandos")
      .Enumerated(1, MakeEnums({{1, "Lower|de|Unterer"}, {2, "Upper|de|Oberer"}}))
      .Default(1)
      .Local();
  dd.Variable("trim_reference")
      .Label("Reference|de|Referenz")
      .Help("What the reference shows at the trim point|de|Anzeige der Referenz am Abgleichpunkt")
      .Float()
      .Format("8.3f")
      .Default(0.0F)
      .Local();
}

void DescribeCalculated(DeviceDescription& dd) {
  dd.Variable("measuring_span")
      .Label("Measuring span|de|Messspanne")
      .Help("Difference of the range values|de|Abstand der Messbereichswerte")
      .Float()
      .Format("8.2f")
      .Default(100.0F)
      .ReadOnly()
      .Local()
      .OnCompute([](Context& context, Variable& variable) {
        const double upper = context.Number("upper_range_value");
        const double lower = context.Number("lower_range_value");
        variable.SetValue(static_cast<float>(std::abs(upper - lower)));
      });
  dd.Variable("operating_days")
      .Label("Operating days|de|Betriebstage")
      .Help("Days that the device has been powered|de|Tage, die das Gerät versorgt war")
      .Double()
      .Format("8.1f")
      .Unit("d")
      .Default(0.0)
      .ReadOnly()
      .Local();
  dd.Variable("previous_sensor_maximum")
      .Label("Previous highest temperature|de|Vorherige Höchsttemperatur")
      .Help(
          "Highest sensor temperature when it was read before the last time|de|"
          "Höchste Sensortemperatur beim vorletzten Lesen")
      .Float()
      .Format("8.2f")
      .Default(0.0F)
      .ReadOnly()
      .Local();
}

}  // namespace

void DescribeLocalVariables(DeviceDescription& dd) {
  DescribeTrimRequest(dd);
  DescribeCalculated(dd);
  hart::DescribeLoopVariables(dd);
  dd.Variable("test_pattern")
      .Label("Test pattern|de|Testmuster")
      .Help("Steps of a test, one character each|de|Schritte eines Tests, je ein Zeichen")
      .BitString(8)
      .Default("00000000")
      .Local();
  const std::int32_t someDay = hart::Date(1, 1, 2000);
  dd.Variable("test_time")
      .Label("Time of test|de|Zeit des Tests")
      .Help("When the last test began|de|Wann der letzte Test begann")
      .Time()
      .Default(someDay)
      .Local();
  dd.Variable("record_time")
      .Label("Time of record|de|Zeit der Aufzeichnung")
      .Help("When the record was made|de|Wann die Aufzeichnung entstand")
      .DateAndTime()
      .Default(someDay)
      .Local();
  dd.Variable("test_duration")
      .Label("Duration of test|de|Dauer des Tests")
      .Help("How long the last test took|de|Wie lange der letzte Test dauerte")
      .Duration()
      .Default(someDay)
      .Local();
}

}  // namespace sampletemperature
