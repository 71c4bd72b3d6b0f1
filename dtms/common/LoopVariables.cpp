#include "common/HartItems.h"

namespace hart {

void DescribeLoopValues(DeviceDescription& dd) {
  dd.Variable("loop_current")
      .Label("Loop current|de|Schleifenstrom")
      .Help(
          "Current that the device drives through its loop|de|"
          "Strom, den das Gerät durch seine Schleife treibt")
      .Float()
      .Format("7.3f")
      .Unit("mA")
      .ReadOnly()
      .Dynamic();
  dd.Variable("percent_of_range")
      .Label("Percent of range|de|Prozent des Messbereichs")
      .Help("Primary variable as part of its range|de|Messwert als Teil seines Messbereichs")
      .Float()
      .Format("7.2f")
      .Unit("%")
      .ReadOnly()
      .Dynamic();
}

void DescribeLoopVariables(DeviceDescription& dd) {
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
}

}  // namespace hart
