#include "common/HartMethods.h"
#include "sampletemperature/Description.h"

// Methods about the device's status: its self test, and the bytes of command 48 one by one.
namespace sampletemperature {
namespace {

constexpr std::int16_t kSelfTest = 41;  // HART command numbers
constexpr std::int16_t kReadAdditionalStatus = 48;
constexpr int kOwnStatusBytes = 6;

std::string OwnStatus(int number) {
  return "device_specific_status_" + std::to_string(number);
}

// The bits are what these methods are about: none of them ends the method.
void ShowEveryStatus(IDDBuiltinLib& dd) {
  constexpr std::uint8_t kAllBits = 0xFF;
  hart::JudgeReplies(dd);
  dd.SetDeviceStatus(kAllBits, StatusHandling::Ignore);
  dd.SetXmtrDeviceStatus(kAllBits, StatusHandling::Ignore);
  dd.SetXmtrAllRespCode(StatusHandling::Ignore);
}

// The device's own bytes lead the data of command 48. True when there was something to show.
bool ShowAdditionalStatus(IDDBuiltinLib& dd, const ByteBuffer& data) {
  bool hasShown = false;
  for (int number = 0; number < kOwnStatusBytes && !dd.IsAbort(); ++number) {
    const auto position = static_cast<std::size_t>(number);
    const std::uint8_t bits = position < data.Count() ? data.Item(position) : std::uint8_t{0};
    if (bits == 0) continue;
    dd.DisplayXmtrStatus(OwnStatus(number), bits);
    hasShown = true;
  }
  return hasShown;
}

void TestDevice(IDDBuiltinLib& dd) {
  ShowEveryStatus(dd);
  if (!hart::Confirm(dd,
                     "The measurement may jump during the test. Start it?|de|"
                     "Die Messung kann während des Tests springen. Starten?")) {
    return;
  }
  std::uint8_t deviceStatus = 0;
  ByteBuffer additional;
  if (!hart::CarryOut(dd, kSelfTest, deviceStatus, additional)) return;
  if (deviceStatus != 0) dd.DisplayDeviceStatus(deviceStatus);
  if (dd.IsAbort()) return;
  if (ShowAdditionalStatus(dd, additional) || deviceStatus != 0 || dd.IsAbort()) return;
  dd.Acknowledge("The device has found no fault.|de|Das Gerät hat keinen Fehler gefunden.");
}

void ShowStatusByte(IDDBuiltinLib& dd, int number) {
  const std::string name = OwnStatus(number);
  const std::int16_t bits = dd.IntValue(name);
  if (bits != 0) {
    dd.DisplayXmtrStatus(name, bits);
  } else {
    dd.Acknowledge("%[L]{0}: no message|de|%[L]{0}: keine Meldung", {dd.VARID(name)});
  }
}

void ShowAllMessages(IDDBuiltinLib& dd) {
  std::string all;
  for (int number = 0; number < kOwnStatusBytes; ++number) {
    const std::int16_t bits = dd.IntValue(OwnStatus(number));
    std::string text;
    if (bits != 0) dd.GetStatusCodeString(OwnStatus(number), bits, text);
    if (dd.IsAbort()) return;
    if (!text.empty()) all += (all.empty() ? "" : "\n") + text;
  }
  dd.Acknowledge(all.empty() ? "The device has no message.|de|Das Gerät hat keine Meldung." : all);
}

void ShowStatus(IDDBuiltinLib& dd) {
  constexpr std::int32_t kAll = kOwnStatusBytes;
  constexpr std::int32_t kEnd = kAll + 1;
  ShowEveryStatus(dd);
  for (;;) {
    const std::int32_t choice = dd.SelectFromList(
        "Status to show|de|Anzuzeigender Status", {},
        "Sensor;Cold junction;Electronics;Configuration;Output;Maintenance;All messages;End|de|"
        "Sensor;Vergleichsstelle;Elektronik;Konfiguration;Ausgang;Wartung;Alle Meldungen;Ende");
    if (dd.IsAbort() || choice == kEnd) return;
    if (hart::CarryOut(dd, kReadAdditionalStatus)) {
      choice == kAll ? ShowAllMessages(dd) : ShowStatusByte(dd, choice);
    }
    if (dd.IsAbort()) return;
  }
}

}  // namespace

void DescribeStatusMethods(DeviceDescription& dd) {
  dd.Method("self_test")
      .Label("Self test|de|Selbsttest")
      .Help("Has the device test itself|de|Lässt das Gerät sich selbst prüfen")
      .Body(TestDevice);
  dd.Method("show_status")
      .Label("Show status|de|Status anzeigen")
      .Help("Shows the device's messages|de|Zeigt die Meldungen des Geräts")
      .Body(ShowStatus);
}

}  // namespace sampletemperature
