#include "sampletemperature/Description.h"
#include "sampletemperature/Sensor.h"

namespace sampletemperature {
namespace {

EnumItem SensorItem(Sensor sensor, std::string text) {
  return {static_cast<std::int32_t>(sensor), std::move(text)};
}

Enums SensorTypes() {
  return MakeEnums({SensorItem(Sensor::Pt100, "Pt100, IEC 60751"),
                    SensorItem(Sensor::Pt500, "Pt500, IEC 60751"),
                    SensorItem(Sensor::Pt1000, "Pt1000, IEC 60751"),
                    SensorItem(Sensor::Ni100, "Ni100, DIN 43760"), SensorItem(Sensor::Cu10, "Cu10"),
                    SensorItem(Sensor::CallendarVanDusen,
                               "Platinum, own coefficients|de|Platin, eigene Koeffizienten"),
                    SensorItem(Sensor::TypeB, "Thermocouple B|de|Thermoelement B"),
                    SensorItem(Sensor::TypeE, "Thermocouple E|de|Thermoelement E"),
                    SensorItem(Sensor::TypeJ, "Thermocouple J|de|Thermoelement J"),
                    SensorItem(Sensor::TypeK, "Thermocouple K|de|Thermoelement K"),
                    SensorItem(Sensor::TypeN, "Thermocouple N|de|Thermoelement N"),
                    SensorItem(Sensor::TypeR, "Thermocouple R|de|Thermoelement R"),
                    SensorItem(Sensor::TypeS, "Thermocouple S|de|Thermoelement S"),
                    SensorItem(Sensor::TypeT, "Thermocouple T|de|Thermoelement T"),
                    SensorItem(Sensor::Millivolts, "Millivolts|de|Millivolt"),
                    SensorItem(Sensor::Ohms, "Ohms|de|Ohm")});
}

bool HasOwnCoefficients(Context& context) {
  return SensorOf(context) == Sensor::CallendarVanDusen;
}

constexpr std::int32_t kTwoWires = 2;

void DescribeResistance(DeviceDescription& dd) {
  dd.Variable("sensor_wiring")
      .Label("Sensor wiring|de|Anschluss des Sensors")
      .Help("Wires between sensor and transmitter|de|Leitungen zwischen Sensor und Messumformer")
      .Enumerated(1, MakeEnums({{kTwoWires, "2 wires|de|2 Leiter"},
                                {3, "3 wires|de|3 Leiter"},
                                {4, "4 wires|de|4 Leiter"}}))
      .Default(4)
      .ValidWhen(HasResistance);
  dd.Variable("wire_resistance")
      .Label("Wire resistance|de|Leitungswiderstand")
      .Help(
          "Resistance of both wires; for 2 wires only|de|"
          "Widerstand beider Leitungen; nur bei 2 Leitern")
      .Float()
      .Format("6.3f")
      .Unit("Ω")
      .Range(0.0F, 50.0F)
      .Default(0.0F)
      .ValidWhen(HasResistance)
      .WritableWhen([](Context& context) { return context.Long("sensor_wiring") == kTwoWires; });
}

void DescribeCoefficients(DeviceDescription& dd) {
  dd.Variable("rtd_r0")
      .Label("Resistance at 0 °C|de|Widerstand bei 0 °C")
      .Help(
          "Coefficient R0 of Callendar and Van Dusen|de|"
          "Koeffizient R0 nach Callendar und Van Dusen")
      .Float()
      .Format("8.3f")
      .Unit("Ω")
      .Range(1.0F, 4000.0F)
      .Default(100.0F)
      .ValidWhen(HasResistance)
      .WritableWhen(HasOwnCoefficients);
  // Values of IEC 60751 as defaults.
  struct Coefficient {
    const char* name;
    const char* label;
    double initial;
  };
  for (const auto& [name, label, initial] :
       {Coefficient{"rtd_a", "Coefficient A|de|Koeffizient A", 3.9083e-3},
        Coefficient{"rtd_b", "Coefficient B|de|Koeffizient B", -5.775e-7},
        Coefficient{"rtd_c", "Coefficient C|de|Koeffizient C", -4.183e-12}}) {
    dd.Variable(name)
        .Label(label)
        .Help(
            "Coefficient of Callendar and Van Dusen|de|"
            "Koeffizient nach Callendar und Van Dusen")
        .Double()
        .Format(".5e")
        .Default(initial)
        .ValidWhen(HasResistance)
        .WritableWhen(HasOwnCoefficients);
  }
}

constexpr std::int32_t kFixedColdJunction = 2;

void DescribeColdJunction(DeviceDescription& dd) {
  dd.Variable("cold_junction_source")
      .Label("Cold junction|de|Vergleichsstelle")
      .Help(
          "Where the temperature of the cold junction comes from|de|"
          "Woher die Temperatur der Vergleichsstelle kommt")
      .Enumerated(1, MakeEnums({{0, "Internal|de|Intern"},
                                {1, "External Pt100|de|Externer Pt100"},
                                {kFixedColdJunction, "Fixed|de|Fest"}}))
      .Default(0)
      .ValidWhen(HasThermocouple);
  dd.Variable("cold_junction_temperature")
      .Label("Fixed cold junction|de|Feste Vergleichsstelle")
      .Help(
          "Temperature of a cold junction that is kept|de|"
          "Temperatur einer thermostatisierten Vergleichsstelle")
      .Float()
      .Format("6.2f")
      .Unit("°C")
      .Range(-50.0F, 100.0F)
      .Default(20.0F)
      .ValidWhen(HasThermocouple)
      .WritableWhen([](Context& context) {
        return context.Long("cold_junction_source") == kFixedColdJunction;
      });
  dd.Variable("cold_junction_offset")
      .Label("Cold junction offset|de|Versatz der Vergleichsstelle")
      .Help("Correction in steps of 0.01 K|de|Korrektur in Schritten von 0,01 K")
      .Integer(2)
      .Scale(0.01)
      .Format("6.2f")
      .Unit("K")
      .Range(-1000, 1000)
      .Default(0)
      .ValidWhen(HasThermocouple);
}

}  // namespace

void DescribeSensorVariables(DeviceDescription& dd) {
  dd.Variable("sensor_type")
      .Label("Sensor type|de|Sensortyp")
      .Help("Sensor that is connected|de|Angeschlossener Sensor")
      .Enumerated(1, SensorTypes())
      .Default(static_cast<std::int32_t>(Sensor::TypeK))
      .Actions(ActionList::PreEdit, {"warn_of_sensor_change"});
  DescribeResistance(dd);
  DescribeCoefficients(dd);
  DescribeColdJunction(dd);
}

}  // namespace sampletemperature
