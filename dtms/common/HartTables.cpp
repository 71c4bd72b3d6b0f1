#include "common/HartTables.h"

namespace hart {

using ZAFHartTypes::dtmkit::MakeEnums;

const Enums& ManufacturerCodes() {
  static const Enums codes =
      MakeEnums({{250, "Not used|de|Nicht benutzt"}, {253, "Special|de|Sonderfall"}});
  return codes;
}

const Enums& DeviceProfileCodes() {
  static const Enums codes =
      MakeEnums({{1, "Process automation device|de|Gerät der Prozessautomatisierung"},
                 {2, "Discrete device|de|Binäres Gerät"},
                 {3, "Hybrid device|de|Hybrides Gerät"},
                 {4, "I/O system|de|E/A-System"},
                 {14, "Discrete adapter|de|Binärer Adapter"},
                 {65, "HART-IP process automation device|de|HART-IP-Gerät"},
                 {66, "HART-IP discrete device|de|Binäres HART-IP-Gerät"},
                 {67, "HART-IP hybrid device|de|Hybrides HART-IP-Gerät"},
                 {68, "HART-IP I/O system|de|HART-IP-E/A-System"},
                 {129, "WirelessHART process automation device|de|WirelessHART-Gerät"},
                 {130, "WirelessHART discrete device|de|Binäres WirelessHART-Gerät"},
                 {131, "WirelessHART hybrid device|de|Hybrides WirelessHART-Gerät"},
                 {132, "WirelessHART gateway|de|WirelessHART-Gateway"},
                 {140, "WirelessHART access point|de|WirelessHART-Zugangspunkt"},
                 {141, "WirelessHART process adapter|de|WirelessHART-Adapter"},
                 {142, "WirelessHART discrete adapter|de|Binärer WirelessHART-Adapter"},
                 {144, "WirelessHART handheld|de|WirelessHART-Handgerät"}});
  return codes;
}

const Enums& PhysicalSignalingCodes() {
  static const Enums codes = MakeEnums({{0, "Bell 202 current|de|Bell 202 Strom"},
                                        {1, "Bell 202 voltage|de|Bell 202 Spannung"},
                                        {2, "RS-485"},
                                        {3, "RS-232"},
                                        {4, "Wireless|de|Drahtlos"},
                                        {6, "Special|de|Sonderfall"}});
  return codes;
}

const Enums& LoopCurrentModeCodes() {
  static const Enums codes =
      MakeEnums({{0, "Disabled|de|Ausgeschaltet"}, {1, "Enabled|de|Eingeschaltet"}});
  return codes;
}

const Enums& WriteProtectCodes() {
  static const Enums codes = MakeEnums({{0, "No|de|Nein"},
                                        {1, "Yes|de|Ja"},
                                        {250, "Not used|de|Nicht benutzt"},
                                        {251, "None|de|Keiner"},
                                        {252, "Unknown|de|Unbekannt"},
                                        {253, "Special|de|Sonderfall"}});
  return codes;
}

const Enums& AlarmSelectionCodes() {
  static const Enums codes = MakeEnums({{0, "High|de|Hoch"},
                                        {1, "Low|de|Niedrig"},
                                        {239, "Hold last value|de|Letzten Wert halten"},
                                        {250, "Not used|de|Nicht benutzt"},
                                        {251, "None|de|Keiner"},
                                        {252, "Unknown|de|Unbekannt"},
                                        {253, "Special|de|Sonderfall"}});
  return codes;
}

const Enums& TransferFunctionCodes() {
  static const Enums codes =
      MakeEnums({{0, "Linear"},
                 {1, "Square root|de|Quadratwurzel"},
                 {2, "Square root of the third power|de|Wurzel der dritten Potenz"},
                 {3, "Square root of the fifth power|de|Wurzel der fünften Potenz"},
                 {4, "Special curve|de|Sonderkurve"},
                 {5, "Square|de|Quadrat"},
                 {230, "Discrete switch|de|Schalter"},
                 {231, "Square root and special curve|de|Wurzel und Sonderkurve"},
                 {250, "Not used|de|Nicht benutzt"},
                 {251, "None|de|Keine"},
                 {252, "Unknown|de|Unbekannt"},
                 {253, "Special|de|Sonderfall"}});
  return codes;
}

const Enums& DeviceVariableClassifications() {
  static const Enums codes = MakeEnums({{0, "Not classified|de|Nicht klassifiziert"},
                                        {64, "Temperature|de|Temperatur"},
                                        {65, "Pressure|de|Druck"},
                                        {66, "Volumetric flow|de|Volumendurchfluss"},
                                        {67, "Velocity|de|Geschwindigkeit"},
                                        {68, "Volume|de|Volumen"},
                                        {69, "Length|de|Länge"},
                                        {70, "Time|de|Zeit"},
                                        {71, "Mass|de|Masse"},
                                        {72, "Mass flow|de|Massedurchfluss"},
                                        {80, "Frequency|de|Frequenz"},
                                        {81, "Analytical|de|Analysewert"},
                                        {82, "Capacitance|de|Kapazität"},
                                        {83, "Electric potential|de|Elektrische Spannung"},
                                        {84, "Current|de|Strom"},
                                        {85, "Resistance|de|Widerstand"},
                                        {86, "Angle|de|Winkel"},
                                        {87, "Conductance|de|Leitwert"},
                                        {98, "Temperature difference|de|Temperaturdifferenz"},
                                        {111, "Miscellaneous|de|Verschiedenes"},
                                        {250, "Not used|de|Nicht benutzt"}});
  return codes;
}

const Enums& ProcessDataStatusCodes() {
  static const Enums codes = MakeEnums({{0, "Bad|de|Schlecht"},
                                        {1, "Poor accuracy|de|Ungenau"},
                                        {2, "Manual or fixed|de|Von Hand oder fest"},
                                        {3, "Good|de|Gut"}});
  return codes;
}

const Enums& LimitStatusCodes() {
  static const Enums codes = MakeEnums({{0, "Not limited|de|Nicht begrenzt"},
                                        {1, "Low limited|de|Unten begrenzt"},
                                        {2, "High limited|de|Oben begrenzt"},
                                        {3, "Constant|de|Konstant"}});
  return codes;
}

const Enums& DeviceOperatingModes() {
  static const Enums codes = MakeEnums({{0, "Normal"}});
  return codes;
}

const Enums& BurstModeControlCodes() {
  static const Enums codes = MakeEnums({{0, "Off|de|Aus"},
                                        {1, "On, wired|de|Ein, Kabel"},
                                        {2, "On, wireless|de|Ein, Funk"},
                                        {3, "On, wired and wireless|de|Ein, Kabel und Funk"}});
  return codes;
}

}  // namespace hart
