#pragma once

#include <initializer_list>

#include "dtmkit/CommandBuilder.h"

// Response codes of the HART document TS20307: the ones of a single meaning,
// and what a command's class always has. Codes 8 to 15 and 28 to 31 mean something else with each
// command; a command gives them itself.
namespace hart {

using ZAFHartTypes::ResponseCode;
using ZAFHartTypes::ResponseCodeType;
using ZAFHartTypes::dtmkit::SharedCodes;

ResponseCode Success();               // 0
ResponseCode InvalidSelection();      // 2
ResponseCode ParameterTooLarge();     // 3
ResponseCode ParameterTooSmall();     // 4
ResponseCode TooFewDataBytes();       // 5
ResponseCode DeviceSpecificError();   // 6
ResponseCode InWriteProtectMode();    // 7
ResponseCode UpdateFailure();         // 8 of reading commands
ResponseCode SetToNearestValue();     // 8 of writing commands
ResponseCode LoopCurrentNotActive();  // 11 of commands on the loop current
ResponseCode AccessRestricted();      // 16
ResponseCode InvalidUnits();          // 18
ResponseCode Busy();                  // 32

// 0, 6, 16, 32 and those of the command.
SharedCodes ReadCodes(std::initializer_list<ResponseCode> own = {});
// 0, 5, 6, 7, 16, 32 and those of the command.
SharedCodes WriteCodes(std::initializer_list<ResponseCode> own = {});
// 0, 6, 7, 16, 32 and those of the command, which carries no data.
SharedCodes ActionCodes(std::initializer_list<ResponseCode> own = {});

}  // namespace hart
