#include "common/HartTables.h"
#include "sampletemperature/Description.h"

namespace sampletemperature {
namespace {

void DescribeNotes(DeviceDescription& dd) {
  dd.Variable("service_date")
      .Label("Service date|de|Wartungsdatum")
      .Help("Day of the last service|de|Tag der letzten Wartung")
      .Date()
      .Default(hart::Date(1, 1, 2000));
  dd.Variable("service_note")
      .Label("Service note|de|Wartungsnotiz")
      .Help("Free text of 32 characters|de|Freier Text von 32 Zeichen")
      .Ascii(32)
      .Default("none");
  dd.Variable("service_code")
      .Label("Service code|de|Wartungscode")
      .Help("Code that opens the device's keypad|de|Code, der die Tasten des Geräts freigibt")
      .Password(8)
      .Default("0000");
  dd.Variable("service_interval")
      .Label("Service interval|de|Wartungsabstand")
      .Help("Days between two services|de|Tage zwischen zwei Wartungen")
      .Unsigned(2)
      .Unit("d")
      .Range(0, 3650)
      .Default(365);
}

void DescribeOperatingData(DeviceDescription& dd) {
  dd.Variable("operating_hours")
      .Label("Operating time|de|Betriebszeit")
      .Help("Time that the device has been powered|de|Zeit, die das Gerät versorgt war")
      .Double()
      .Format("10.1f")
      .Unit("h")
      .ReadOnly()
      .Actions(ActionList::PostRead, {"convert_operating_time"});
  dd.Variable("sensor_minimum")
      .Label("Lowest sensor temperature|de|Tiefste Sensortemperatur")
      .Help("Not a number before the first measurement|de|Keine Zahl vor der ersten Messung")
      .Float()
      .Format("8.2f")
      .ReadOnly();
  dd.Variable("sensor_maximum")
      .Label("Highest sensor temperature|de|Höchste Sensortemperatur")
      .Help("Not a number before the first measurement|de|Keine Zahl vor der ersten Messung")
      .Float()
      .Format("8.2f")
      .ReadOnly()
      .Actions(ActionList::PreRead, {"keep_sensor_maximum"});
  dd.Variable("electronics_minimum")
      .Label("Lowest electronics temperature|de|Tiefste Elektroniktemperatur")
      .Help("Since the device was made|de|Seit der Herstellung des Geräts")
      .Integer(1)
      .Unit("°C")
      .ReadOnly();
  dd.Variable("electronics_maximum")
      .Label("Highest electronics temperature|de|Höchste Elektroniktemperatur")
      .Help("Since the device was made|de|Seit der Herstellung des Geräts")
      .Integer(1)
      .Unit("°C")
      .ReadOnly();
  dd.Variable("restart_count")
      .Label("Restarts|de|Neustarts")
      .Help("Times that the device was started|de|Anzahl der Neustarts")
      .Unsigned(3)
      .ReadOnly();
  dd.Variable("event_log")
      .Label("Past events|de|Frühere Ereignisse")
      .Help("What happened since the last service|de|Was seit der letzten Wartung geschah")
      .BitEnumerated(2, MakeBits({{0x0001, "Sensor broken|de|Sensorbruch"},
                                  {0x0002, "Sensor short-circuited|de|Sensorkurzschluss"},
                                  {0x0004, "Electronics too warm|de|Elektronik zu warm"},
                                  {0x0100, "Supply too low|de|Versorgung zu gering"},
                                  {0x0200, "Configuration lost|de|Konfiguration verloren"}}))
      .ReadOnly();
}

}  // namespace

void DescribeServiceVariables(DeviceDescription& dd) {
  DescribeNotes(dd);
  DescribeOperatingData(dd);
}

}  // namespace sampletemperature
