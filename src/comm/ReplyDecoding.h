#pragma once

#include "ddobjects/ByteBuffer.h"
#include "interfaces/ILink.h"
#include "linksim/Frame.h"

namespace ZAFHartLib {

// Takes a reply's values into the items it stands for: out of its bytes, or out of the values by
// name when the link gave those. A constant takes its byte. A variable takes its value unless the
// item is an INFO item or the variable is to be written; its error is cleared then, and it becomes
// available. A variable whose bytes or value the reply lacks keeps what it has; it records the
// error of missing bytes when the device reports success.
//
// Raises what LayOut raises.
void DecodeReply(const ZAFHartTypes::Exchange& exchange, const HartLinkSim::Frame& frame,
                 ZAFHartTypes::DataItemList& reply);

// Records an error on the variables of the items; number 0 and "" clear it.
void SetErrors(ZAFHartTypes::DataItemList& items, std::int32_t number, const std::string& text);

// Puts a status into reply items 1 and 2 as a device's reply has it: the communication error byte
// or the response code, and the device status.
void SetStatusItems(ZAFHartTypes::DataItemList& reply, const ZAFHartTypes::CommandStatus& status);

}  // namespace ZAFHartLib
