#include "common/HartItems.h"
#include "common/HartTables.h"

namespace hart {

using namespace ZAFHartTypes;          // NOLINT(google-build-using-namespace)
using namespace ZAFHartTypes::dtmkit;  // NOLINT(google-build-using-namespace)

namespace {

// What requests to the device are made with. Command 0 tells these and the next; nothing writes
// them but command 59 the number of response preambles.
void DescribeAddressing(DeviceDescription& dd) {
  dd.Variable("manufacturer_id")
      .Label("Manufacturer|de|Hersteller")
      .Help("Company that made the device|de|Firma, die das Gerät hergestellt hat")
      .Enumerated(2, ManufacturerCodes())
      .ReadOnly();
  dd.Variable("device_type")
      .Label("Device type|de|Gerätetyp")
      .Help("Expanded device type code|de|Erweiterte Gerätetypnummer")
      .Unsigned(2)
      .ReadOnly();
  dd.Variable("device_id")
      .Label("Device identification|de|Gerätekennung")
      .Help("Number of this one device|de|Nummer dieses einen Geräts")
      .Unsigned(3)
      .ReadOnly();
  dd.Variable("request_preambles")
      .Label("Request preambles|de|Präambeln der Anfrage")
      .Help(
          "Preambles that the device needs in front of a request|de|"
          "Präambeln, die das Gerät vor einer Anfrage braucht")
      .Unsigned(1)
      .ReadOnly();
  dd.Variable("response_preambles")
      .Label("Response preambles|de|Präambeln der Antwort")
      .Help(
          "Preambles that the device sends in front of a reply|de|"
          "Präambeln, die das Gerät vor einer Antwort sendet")
      .Unsigned(1)
      .Range(5, 20)
      .Default(5);
}

void DescribeDevice(DeviceDescription& dd) {
  dd.Variable("max_device_variables")
      .Label("Last device variable|de|Letzte Gerätevariable")
      .Help(
          "Highest device variable code that the device uses|de|"
          "Höchste Nummer einer Gerätevariablen")
      .Unsigned(1)
      .ReadOnly();
  dd.Variable("configuration_change_counter")
      .Label("Configuration changes|de|Konfigurationsänderungen")
      .Help("Times that the configuration was changed|de|Anzahl der Konfigurationsänderungen")
      .Unsigned(2)
      .ReadOnly()
      .Dynamic();
  dd.Variable("device_flags")
      .Label("Flags|de|Merkmale")
      .Help("Properties of the device|de|Eigenschaften des Geräts")
      .BitEnumerated(1, DeviceFlagBits())
      .ReadOnly();
  dd.Variable("private_label_distributor")
      .Label("Private label distributor|de|Vertreiber")
      .Help(
          "Company that sells the device under its name|de|"
          "Firma, die das Gerät unter ihrem Namen vertreibt")
      .Enumerated(2, ManufacturerCodes())
      .ReadOnly();
  dd.Variable("device_profile")
      .Label("Device profile|de|Geräteprofil")
      .Help("Kind of device|de|Art des Geräts")
      .Enumerated(1, DeviceProfileCodes())
      .ReadOnly();
}

void DescribeRevisions(DeviceDescription& dd) {
  dd.Variable("universal_revision")
      .Label("HART revision|de|HART-Revision")
      .Help("Revision of the universal commands|de|Revision der universellen Kommandos")
      .Unsigned(1)
      .ReadOnly();
  dd.Variable("device_revision")
      .Label("Device revision|de|Geräterevision")
      .Help(
          "Revision of the device-specific commands|de|"
          "Revision der gerätespezifischen Kommandos")
      .Unsigned(1)
      .ReadOnly();
  dd.Variable("software_revision")
      .Label("Software revision|de|Softwarerevision")
      .Help("Revision of the device's software|de|Revision der Gerätesoftware")
      .Unsigned(1)
      .ReadOnly();
  dd.Variable("hardware_revision")
      .Label("Hardware revision|de|Hardwarerevision")
      .Help("Revision of the device's electronics|de|Revision der Geräteelektronik")
      .Unsigned(1)
      .ReadOnly();
  dd.Variable("physical_signaling_code")
      .Label("Physical signaling|de|Übertragungsart")
      .Help("How the device talks to its master|de|Wie das Gerät mit seinem Master spricht")
      .Enumerated(1, PhysicalSignalingCodes())
      .ReadOnly();
}

// What the plant calls the device.
void DescribeNames(DeviceDescription& dd) {
  dd.Variable("polling_address")
      .Label("Polling address|de|Kurzadresse")
      .Help("Address of the device on its line|de|Adresse des Geräts an seiner Leitung")
      .Unsigned(1)
      .Range(0, 63)
      .Default(0);
  dd.Variable("tag")
      .Label("Tag|de|Messstelle")
      .Help("Name of the measuring point, 8 characters|de|Name der Messstelle, 8 Zeichen")
      .PackedAscii(8);
  dd.Variable("descriptor")
      .Label("Descriptor|de|Beschreibung")
      .Help("Free text of 16 characters|de|Freier Text von 16 Zeichen")
      .PackedAscii(16);
  dd.Variable("date")
      .Label("Date|de|Datum")
      .Help("Date that the user keeps in the device|de|Datum, das der Anwender im Gerät ablegt")
      .Date()
      .Default(Date(1, 1, 2000));
  dd.Variable("message")
      .Label("Message|de|Nachricht")
      .Help("Free text of 32 characters|de|Freier Text von 32 Zeichen")
      .PackedAscii(32);
  dd.Variable("long_tag")
      .Label("Long tag|de|Lange Messstellenbezeichnung")
      .Help("Name of the measuring point, 32 characters|de|Name der Messstelle, 32 Zeichen")
      .Ascii(32);
  dd.Variable("final_assembly_number")
      .Label("Final assembly number|de|Fertigungsnummer")
      .Help("Number of the assembled device|de|Nummer des zusammengebauten Geräts")
      .Unsigned(3)
      .Default(0);
}

}  // namespace

void DescribeIdentityVariables(DeviceDescription& dd) {
  DescribeAddressing(dd);
  DescribeDevice(dd);
  DescribeRevisions(dd);
  DescribeNames(dd);
}

}  // namespace hart
