// The meaning of status bytes and response codes.

#include "builtins/CDDBuiltinLib.h"
#include "ddobjects/Command.h"
#include "types/Utf8.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

constexpr int kBitsOfByte = 8;

void AddLine(std::string& text, const std::string& line, const char* newLine) {
  if (line.empty()) return;
  if (!text.empty()) text += newLine;
  text += line;
}

// Codes of the whole command first, then those of a transaction only.
const ResponseCode* FindCode(const Command& command, std::int16_t responseCode) {
  const ResponseCode* code = command.ResponseCodes().Find(responseCode);
  for (auto each = command.Transactions().begin(); !code && each != command.Transactions().end();
       ++each) {
    code = (*each)->ResponseCodes().Find(responseCode);
  }
  return code;
}

}  // namespace

void CDDBuiltinLib::ShowStatus(MessageIcon icon, enumDDResourceIDs title, std::string text) {
  HideMessage();
  Show(icon, StandardText(title), std::move(text));
}

// One line per bit; bit 0 has the text of number `firstText`.
std::string CDDBuiltinLib::BitTexts(std::int16_t status, std::int32_t firstText) {
  std::string text;
  for (int bit = 0; bit < kBitsOfByte; ++bit) {
    if ((status & (1 << bit)) != 0) AddLine(text, StandardText(firstText + bit), kNewLine);
  }
  return text;
}

void CDDBuiltinLib::DisplayCommStatus(std::int16_t status) {
  constexpr std::int16_t kUndefined = 1;  // bit 0 means nothing, and its number is the title's
  const auto meaning = static_cast<std::int16_t>(status & ~kUndefined);
  const std::string text = BitTexts(meaning, idCommStatusEntry);
  if (text.empty()) {
    FailMethod(idErrCommStatus, {{"s", status}});
  } else {
    ShowStatus(MessageIcon::Exclamation, idCommStatusEntry, text);
  }
}

void CDDBuiltinLib::DisplayDeviceStatus(std::int16_t status) {
  const std::string text = BitTexts(status, idPVOutOfLimits);
  if (text.empty()) {
    FailMethod(idErrDeviceStatus, {{"s", status}});
  } else {
    ShowStatus(MessageIcon::Exclamation, idDeviceStatusEntry, text);
  }
}

// Nothing after FailMethod.
std::optional<std::string> CDDBuiltinLib::ResponseText(std::int16_t number,
                                                       std::int16_t responseCode) {
  const Definition definition = FindCommandByNumber(number);
  if (!definition) {
    FailMethod(idErrCommand, {{"s", number}});
    return std::nullopt;
  }
  const auto command = model_.Kernel()->GetCommand(definition);
  const ResponseCode* code = FindCode(*command, responseCode);
  if (!code) {
    FailMethod(idErrCommandResp, {{"s1", responseCode}, {"s2", number}});
    return std::nullopt;
  }
  return LangText(code->Description());
}

void CDDBuiltinLib::DisplayResponseStatus(std::int16_t number, std::int16_t responseCode) {
  if (auto text = ResponseText(number, responseCode)) {
    ShowStatus(MessageIcon::Information, idResponseCodeEntry, std::move(*text));
  }
}

void CDDBuiltinLib::RspcodeString(std::int16_t number, std::int16_t responseCode, ByteBuffer& text,
                                  std::int16_t length) {
  const auto description = ResponseText(number, responseCode);
  if (!description) return;
  const auto most = static_cast<std::size_t>(std::max<std::int16_t>(length, 0));
  text.SetText(utf8::Prefix(*description, most));
}

// "" after FailMethod.
std::string CDDBuiltinLib::StatusText(const std::string& variableName, std::int16_t status,
                                      enumDDResourceIDs error) {
  const auto variable = GetMethodVariable(variableName);
  if (variable->TypeInfo().TypeCode() != TypeCode::BitEnumerated) {
    FailMethod(idErrWrongVarType, {{"s", variableName}});
    return {};
  }
  std::string text;
  for (const BitItem& bit : variable->TypeInfo().BitItems()) {
    if ((bit.Value() & static_cast<std::uint16_t>(status)) != 0)
      AddLine(text, LangText(bit.Description()), kNewLine);
  }
  if (text.empty()) FailMethod(error, {{"s1", variableName}, {"s2", status}});
  return text;
}

void CDDBuiltinLib::DisplayXmtrStatus(const std::string& variableName, std::int16_t status) {
  std::string text = StatusText(variableName, status, idErrXmtrStatus);
  if (text.empty()) return;
  ShowStatus(MessageIcon::Information, idDeviceStatusEntry, std::move(text));
}

void CDDBuiltinLib::GetStatusCodeString(const std::string& variableName, std::int16_t status,
                                        std::string& text) {
  text = StatusText(variableName, status, idErrXmtrResp);
}

}  // namespace ZAFHartLib
