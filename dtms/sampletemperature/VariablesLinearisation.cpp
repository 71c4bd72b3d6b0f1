#include "sampletemperature/Description.h"
#include "sampletemperature/LinearisationPoint.h"

namespace sampletemperature {
namespace {

std::string Numbered(const std::string& english, const std::string& german, int number) {
  const std::string suffix = " " + std::to_string(number);
  return english + suffix + "|de|" + german + suffix;
}

void DescribePoint(DeviceDescription& dd, int number) {
  const auto used = [number](Context& context) {
    return context.Long("linearisation_mode") != 0 && context.Long("linearisation_count") >= number;
  };
  dd.Variable(LinearisationInput(number))
      .Label(Numbered("Input", "Eingang", number))
      .Help("Measured temperature of the point|de|Gemessene Temperatur des Stützpunkts")
      .Float()
      .Format("8.2f")
      .Default(100.0F * static_cast<float>(number - 1))
      .ValidWhen(used);
  dd.Variable(LinearisationOutput(number))
      .Label(Numbered("Output", "Ausgang", number))
      .Help("Temperature that is shown at the point|de|Angezeigte Temperatur am Stützpunkt")
      .Float()
      .Format("8.2f")
      .Default(100.0F * static_cast<float>(number - 1))
      .ValidWhen(used);
}

}  // namespace

void DescribeLinearisationVariables(DeviceDescription& dd) {
  auto points = dd.Array("linearisation_points").Label("Points|de|Stützpunkte");
  for (int number = 1; number <= kLinearisationPoints; ++number) {
    const std::string label = Numbered("Point", "Stützpunkt", number);
    points.Collection(number, LinearisationPoint(number), label);
    dd.Collection(LinearisationPoint(number))
        .Label(label)
        .Variable("INPUT", LinearisationInput(number))
        .Variable("OUTPUT", LinearisationOutput(number));
    DescribePoint(dd, number);
  }
  dd.Collection("linearisation")
      .Label("Linearisation|de|Linearisierung")
      .Variable("MODE", "linearisation_mode")
      .Variable("COUNT", "linearisation_count")
      .Array("POINTS", "linearisation_points");
  dd.Variable("linearisation_mode")
      .Label("Linearisation|de|Linearisierung")
      .Help("Whether the table of points is used|de|Ob die Stützpunkttabelle benutzt wird")
      .Enumerated(1, MakeEnums({{0, "Off|de|Aus"}, {1, "On|de|Ein"}}))
      .Default(0);
  dd.Variable("linearisation_count")
      .Label("Number of points|de|Anzahl der Stützpunkte")
      .Help("Points of the table that are used|de|Benutzte Stützpunkte der Tabelle")
      .Unsigned(1)
      .Range(2, kLinearisationPoints)
      .Default(2);
  dd.Variable("linearisation_index")
      .Label("Point|de|Stützpunkt")
      .Help("Point that a command is about|de|Stützpunkt eines Kommandos")
      .Index(1, "linearisation_points")
      .Default(1)
      .Local();
}

}  // namespace sampletemperature
