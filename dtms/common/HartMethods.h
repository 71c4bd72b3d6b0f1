#pragma once

#include <cstdint>
#include <string>

#include "dtmkit/MethodBody.h"

// What the methods of HART devices have in common.
namespace hart {

using ZAFHartTypes::IDDBuiltinLib;

// Leaves the judgement of response codes to CarryOut, and has a command that was disturbed or not
// answered sent twice more.
void JudgeReplies(IDDBuiltinLib& dd);

// The same for methods that show the device's status: none of its bits ends the method.
void ShowEveryStatus(IDDBuiltinLib& dd);
// The device's own bytes lead the data of command 48; the variables device_specific_status_0 … have
// the texts.
inline constexpr int kOwnStatusBytes = 6;
std::string OwnStatus(int number);

// Sends a command and tells the user what the device has to say about it. True when the device has
// carried it out, be it with a warning. False when it has refused, which the method may answer with
// another try; without an answer, and when the user breaks off, the method is aborted.
bool CarryOut(IDDBuiltinLib& dd, std::int16_t command);
// The same with what the device says about itself: the device status, and the data of command 48
// when it has additional status, otherwise zeros.
bool CarryOut(IDDBuiltinLib& dd, std::int16_t command, std::uint8_t& deviceStatus,
              ZAFHartTypes::ByteBuffer& additionalStatus);

// Asks a question that is answered by no or yes; false when the user breaks off.
bool Confirm(IDDBuiltinLib& dd, const char* question, const ZAFHartTypes::VariableIds& ids = {});

// Shows a text with live values for so many seconds, or until the user breaks off: false then.
bool ShowLive(IDDBuiltinLib& dd, const char* prompt, const ZAFHartTypes::VariableIds& ids,
              int seconds);

// Asks for a number until it is within the limits. False when the user breaks off.
bool AskNumber(IDDBuiltinLib& dd, const char* question, const ZAFHartTypes::VariableIds& ids,
               double minimum, double maximum, double& number);

}  // namespace hart
