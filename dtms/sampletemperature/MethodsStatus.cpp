#include "common/HartItems.h"
#include "common/HartMethods.h"
#include "sampletemperature/Description.h"

// Methods about the device's status: its self test, and the bytes of command 48 one by one.
namespace sampletemperature {
namespace {

constexpr std::int16_t kReadAdditionalStatus = 48;  // HART command number

void ShowStatusByte(IDDBuiltinLib& dd, int number) {
  const std::string name = hart::OwnStatus(number);
  const std::int16_t bits = dd.IntValue(name);
  if (bits != 0) {
    dd.DisplayXmtrStatus(name, bits);
  } else {
    dd.Acknowledge("%[L]{0}: no message|de|%[L]{0}: keine Meldung", {dd.VARID(name)});
  }
}

void ShowAllMessages(IDDBuiltinLib& dd) {
  std::string all;
  for (int number = 0; number < hart::kOwnStatusBytes; ++number) {
    const std::int16_t bits = dd.IntValue(hart::OwnStatus(number));
    std::string text;
    if (bits != 0) dd.GetStatusCodeString(hart::OwnStatus(number), bits, text);
    if (dd.IsAbort()) return;
    if (!text.empty()) all += (all.empty() ? "" : "\n") + text;
  }
  dd.Acknowledge(all.empty() ? "The device has no message.|de|Das Gerät hat keine Meldung." : all);
}

void ShowStatus(IDDBuiltinLib& dd) {
  constexpr std::int32_t kAll = hart::kOwnStatusBytes;
  constexpr std::int32_t kEnd = kAll + 1;
  hart::ShowEveryStatus(dd);
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
  hart::DescribeSelfTest(dd);
  dd.Method("show_status")
      .Label("Show status|de|Status anzeigen")
      .Help("Shows the device's messages|de|Zeigt die Meldungen des Geräts")
      .Body(ShowStatus);
}

}  // namespace sampletemperature
