#include "common/HartResponseCodes.h"

namespace hart {
namespace {

using ZAFHartTypes::ResponseCodeList;

SharedCodes Join(std::initializer_list<ResponseCode> always,
                 std::initializer_list<ResponseCode> own) {
  ResponseCodeList list(always);
  for (const ResponseCode& code : own) list.Add(code);
  return std::make_shared<const ResponseCodeList>(std::move(list));
}

}  // namespace

ResponseCode Success() {
  return {0, ResponseCodeType::Success,
          "No command-specific error|de|Kein kommandospezifischer Fehler"};
}

ResponseCode InvalidSelection() {
  return {2, ResponseCodeType::DataEntryError, "Invalid selection|de|Ungültige Auswahl",
          "Choose one of the values that the device offers.|de|Wählen Sie einen Wert, den das "
          "Gerät anbietet."};
}

ResponseCode ParameterTooLarge() {
  return {3, ResponseCodeType::DataEntryError, "Value was too high|de|Wert war zu hoch",
          "Enter a smaller value.|de|Geben Sie einen kleineren Wert ein."};
}

ResponseCode ParameterTooSmall() {
  return {4, ResponseCodeType::DataEntryError, "Value was too low|de|Wert war zu niedrig",
          "Enter a greater value.|de|Geben Sie einen größeren Wert ein."};
}

ResponseCode TooFewDataBytes() {
  return {5, ResponseCodeType::MiscError,
          "Too few data bytes received|de|Zu wenige Datenbytes empfangen"};
}

ResponseCode DeviceSpecificError() {
  return {6, ResponseCodeType::MiscError, "Device-specific error|de|Gerätespezifischer Fehler"};
}

ResponseCode InWriteProtectMode() {
  return {7, ResponseCodeType::ModeError, "In write protect mode|de|Schreibschutz aktiv",
          "Switch the write protection off at the device.|de|Schalten Sie den Schreibschutz am "
          "Gerät aus."};
}

ResponseCode UpdateFailure() {
  return {8, ResponseCodeType::MiscWarning, "Update failure|de|Aktualisierung fehlgeschlagen",
          "The values are those of an earlier measurement.|de|Die Werte stammen von einer früheren "
          "Messung."};
}

ResponseCode SetToNearestValue() {
  return {8, ResponseCodeType::DataEntryWarning,
          "Set to nearest possible value|de|Auf nächstmöglichen Wert gesetzt"};
}

ResponseCode LoopCurrentNotActive() {
  return {11, ResponseCodeType::ModeError, "Loop current not active|de|Schleifenstrom nicht aktiv",
          "The device has a fixed current because it shares its line with others.|de|Das Gerät hat "
          "festen Strom, weil es die Leitung mit anderen teilt."};
}

ResponseCode AccessRestricted() {
  return {16, ResponseCodeType::ModeError, "Access restricted|de|Zugriff eingeschränkt",
          "The device is being operated from another place.|de|Das Gerät wird gerade anderswo "
          "bedient."};
}

ResponseCode InvalidUnits() {
  return {18, ResponseCodeType::DataEntryError, "Invalid units code|de|Ungültige Einheit"};
}

ResponseCode Busy() {
  return {32, ResponseCodeType::MiscError, "Busy|de|Beschäftigt",
          "Try again later.|de|Versuchen Sie es später noch einmal."};
}

SharedCodes ReadCodes(std::initializer_list<ResponseCode> own) {
  return Join({Success(), DeviceSpecificError(), AccessRestricted(), Busy()}, own);
}

SharedCodes WriteCodes(std::initializer_list<ResponseCode> own) {
  return Join({Success(), TooFewDataBytes(), DeviceSpecificError(), InWriteProtectMode(),
               AccessRestricted(), Busy()},
              own);
}

SharedCodes ActionCodes(std::initializer_list<ResponseCode> own) {
  return Join({Success(), DeviceSpecificError(), InWriteProtectMode(), AccessRestricted(), Busy()},
              own);
}

}  // namespace hart
