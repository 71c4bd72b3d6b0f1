#include "common/HartTables.h"

namespace hart {

using ZAFHartTypes::dtmkit::MakeBits;

const Bits& DeviceStatusBits() {
  static const Bits bits =
      MakeBits({{0x80, "Device malfunction|de|Gerätestörung"},
                {0x40, "Configuration changed|de|Konfiguration geändert"},
                {0x20, "Cold start|de|Kaltstart"},
                {0x10, "More status available|de|Weiterer Status vorhanden"},
                {0x08, "Loop current fixed|de|Schleifenstrom fest"},
                {0x04, "Loop current saturated|de|Schleifenstrom gesättigt"},
                {0x02, "Non-primary variable out of limits|de|Nebenmesswert außerhalb der Grenzen"},
                {0x01, "Primary variable out of limits|de|Messwert außerhalb der Grenzen"}});
  return bits;
}

const Bits& ExtendedDeviceStatusBits() {
  static const Bits bits =
      MakeBits({{0x01, "Maintenance required|de|Wartungsbedarf"},
                {0x02, "Device variable alert|de|Alarm einer Gerätevariablen"},
                {0x04, "Critical power failure|de|Kritische Energieversorgung"},
                {0x08, "Failure|de|Ausfall"},
                {0x10, "Out of specification|de|Außerhalb der Spezifikation"},
                {0x20, "Function check|de|Funktionskontrolle"}});
  return bits;
}

const Bits& DeviceFlagBits() {
  static const Bits bits = MakeBits({{0x01, "Multi-sensor device|de|Gerät mit mehreren Sensoren"},
                                     {0x02, "EEPROM control|de|EEPROM-Steuerung"},
                                     {0x04, "Protocol bridge|de|Protokollumsetzer"},
                                     {0x08, "IEEE 802.15.4 radio|de|Funk nach IEEE 802.15.4"},
                                     {0x40, "C8PSK capable|de|C8PSK-fähig"},
                                     {0x80, "C8PSK in multi-drop only|de|C8PSK nur im Multidrop"}});
  return bits;
}

const Bits& AnalogChannelFlagBits() {
  static const Bits bits = MakeBits({{0x01, "Analog input channel|de|Analogeingang"}});
  return bits;
}

const Bits& AnalogChannelBits() {
  static const Bits bits = MakeBits({{0x01, "Analog channel 1|de|Analogkanal 1"},
                                     {0x02, "Analog channel 2|de|Analogkanal 2"},
                                     {0x04, "Analog channel 3|de|Analogkanal 3"},
                                     {0x08, "Analog channel 4|de|Analogkanal 4"}});
  return bits;
}

const Bits& StandardizedStatus0Bits() {
  static const Bits bits =
      MakeBits({{0x01, "Device variable simulation active|de|Simulation einer Gerätevariablen"},
                {0x02, "Non-volatile memory defect|de|Fehler im Festspeicher"},
                {0x04, "Volatile memory defect|de|Fehler im Arbeitsspeicher"},
                {0x08, "Watchdog reset executed|de|Neustart durch Watchdog"},
                {0x10, "Supply voltage out of range|de|Versorgungsspannung außerhalb"},
                {0x20, "Environment out of range|de|Umgebungsbedingungen außerhalb"},
                {0x40, "Electronics defect|de|Fehler in der Elektronik"},
                {0x80, "Configuration locked|de|Konfiguration gesperrt"}});
  return bits;
}

const Bits& StandardizedStatus1Bits() {
  static const Bits bits =
      MakeBits({{0x01, "Status simulation active|de|Simulation des Status"},
                {0x02, "Discrete variable simulation active|de|Simulation einer Binärvariablen"},
                {0x04, "Event notification overflow|de|Überlauf der Ereignismeldungen"},
                {0x08, "Battery or supply needs maintenance|de|Batterie oder Versorgung warten"}});
  return bits;
}

const Bits& StandardizedStatus2Bits() {
  static const Bits bits =
      MakeBits({{0x01, "Sub-device list changed|de|Liste der Untergeräte geändert"},
                {0x02, "Duplicate master detected|de|Zweiter Master erkannt"},
                {0x04, "Sub-device mismatch|de|Untergerät passt nicht"},
                {0x08, "Sub-devices with one identity|de|Untergeräte gleicher Identität"},
                {0x10, "Stale data|de|Veraltete Daten"}});
  return bits;
}

const Bits& StandardizedStatus3Bits() {
  static const Bits bits =
      MakeBits({{0x01, "Capacity denied|de|Kapazität verweigert"},
                {0x04, "Bandwidth allocation pending|de|Bandbreite angefordert"},
                {0x08, "Block transfer pending|de|Blockübertragung läuft"},
                {0x10, "Radio failure|de|Funkausfall"}});
  return bits;
}

const Bits& DeviceFamilyStatusBits() {
  static const Bits bits =
      MakeBits({{0x08, "More device variable status|de|Weiterer Variablenstatus"},
                {0x04, "Family status 2|de|Familienstatus 2"},
                {0x02, "Family status 1|de|Familienstatus 1"},
                {0x01, "Family status 0|de|Familienstatus 0"}});
  return bits;
}

}  // namespace hart
