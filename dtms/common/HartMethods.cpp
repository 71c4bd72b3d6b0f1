#include "common/HartMethods.h"

#include "hart/StatusBytes.h"

namespace hart {

using ZAFHartTypes::ByteBuffer;
using ZAFHartTypes::StatusByte;
using ZAFHartTypes::StatusHandling;
using ZAFHartTypes::VariableIds;
using ZAFHartTypes::Variant;

namespace {

std::uint8_t Byte(const ByteBuffer& status, StatusByte which) {
  return status.Item(static_cast<std::size_t>(which));
}

std::string Text(double number) {
  return Variant(static_cast<float>(number)).ToText();
}

// What became of a command, told to the user.
bool IsCarriedOut(IDDBuiltinLib& dd, std::int16_t command, std::int32_t result,
                  const ByteBuffer& status) {
  if (dd.IsAbort()) return false;
  if (result != 0 || Byte(status, StatusByte::Communication) != 0) {
    dd.Abort(true);
    return false;
  }
  const std::uint8_t code = Byte(status, StatusByte::ResponseCode);
  if (code == ZAFHartTypes::hart::kSuccess) return true;
  dd.DisplayResponseStatus(command, code);
  return !dd.IsAbort() && ZAFHartTypes::hart::IsCarriedOut(code);
}

}  // namespace

void JudgeReplies(IDDBuiltinLib& dd) {
  constexpr std::int16_t kMoreAttempts = 2;
  constexpr std::uint8_t kAllBits = 0xFF;
  dd.SETNUMBEROFRETRIES(kMoreAttempts);
  dd.SetAllRespCode(StatusHandling::Ignore);
  dd.SetCommStatus(kAllBits, StatusHandling::Retry);
  dd.SetNoDevice(StatusHandling::Retry);
}

std::string OwnStatus(int number) {
  return "device_specific_status_" + std::to_string(number);
}

void ShowEveryStatus(IDDBuiltinLib& dd) {
  constexpr std::uint8_t kAllBits = 0xFF;
  JudgeReplies(dd);
  dd.SetDeviceStatus(kAllBits, StatusHandling::Ignore);
  dd.SetXmtrDeviceStatus(kAllBits, StatusHandling::Ignore);
  dd.SetXmtrAllRespCode(StatusHandling::Ignore);
}

bool CarryOut(IDDBuiltinLib& dd, std::int16_t command) {
  ByteBuffer status{0, 0, 0};
  const std::int32_t result = dd.Send(command, status);
  return IsCarriedOut(dd, command, result, status);
}

bool CarryOut(IDDBuiltinLib& dd, std::int16_t command, std::uint8_t& deviceStatus,
              ByteBuffer& additionalStatus) {
  ByteBuffer status{0, 0, 0};
  ByteBuffer statusOfAdditional{0, 0, 0};
  const std::int32_t result =
      dd.ExtSendCommand(command, status, statusOfAdditional, additionalStatus);
  deviceStatus = Byte(status, StatusByte::Device);
  return IsCarriedOut(dd, command, result, status);
}

bool Confirm(IDDBuiltinLib& dd, const char* question, const VariableIds& ids) {
  constexpr std::int32_t kYes = 1;
  return dd.SelectFromList(question, ids, "No;Yes|de|Nein;Ja") == kYes && !dd.IsAbort();
}

bool ShowLive(IDDBuiltinLib& dd, const char* prompt, const VariableIds& ids, int seconds) {
  for (int second = 0; second < seconds && !dd.IsAbort(); ++second) dd.Display(prompt, ids);
  return !dd.IsAbort();
}

bool AskNumber(IDDBuiltinLib& dd, const char* question, const VariableIds& ids, double minimum,
               double maximum, double& number) {
  for (;;) {
    Variant answer = number;
    dd.GetLocalVarValue(question, ids, answer);
    if (dd.IsAbort()) return false;
    number = answer.ToDouble();
    if (number >= minimum && number <= maximum) return true;
    dd.Acknowledge(number < minimum ? "The least value is " + Text(minimum) +
                                          ".|de|Der kleinste Wert ist " + Text(minimum) + "."
                                    : "The greatest value is " + Text(maximum) +
                                          ".|de|Der größte Wert ist " + Text(maximum) + ".");
    if (dd.IsAbort()) return false;
  }
}

}  // namespace hart
