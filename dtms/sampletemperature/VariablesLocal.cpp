#include "common/HartTables.h"
#include "sampletemperature/Description.h"

namespace sampletemperature {

// Held by the DTM: what the user gives to a command or keeps for himself. The types of text and
// time that have no place on the wire are here.
void DescribeLocalVariables(DeviceDescription& dd) {
  dd.Variable("fixed_loop_current")
      .Label("Fixed loop current|de|Fester Schleifenstrom")
      .Help("Current to hold; 0 releases it|de|Strom, der gehalten wird; 0 gibt ihn frei")
      .Float()
      .Format("6.3f")
      .Unit("mA")
      .Range(0.0F, 0.0F)
      .Range(3.5F, 23.0F)
      .Default(0.0F)
      .Local();
  dd.Variable("measured_loop_current")
      .Label("Measured loop current|de|Gemessener Schleifenstrom")
      .Help("Reading of the reference meter|de|Anzeige des Referenzmessgeräts")
      .Float()
      .Format("6.3f")
      .Unit("mA")
      .Range(3.5F, 23.0F)
      .Default(4.0F)
      .Local();
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
