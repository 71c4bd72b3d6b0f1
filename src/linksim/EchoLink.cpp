#include "linksim/EchoLink.h"

#include <algorithm>

#include "hart/HexText.h"
#include "hart/StatusBytes.h"

namespace HartLinkSim {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::Exchange;

namespace {

std::vector<std::uint8_t> EchoOf(const Exchange& exchange) {
  std::vector<std::uint8_t> reply = hart::FromHex(exchange.ReplyData());
  reply.resize(std::max(reply.size(), hart::kStatusSize));
  const ZAFHartTypes::DataItemList* items = exchange.ReplyItems();
  for (std::size_t i = 0; items && i < std::min(items->Count(), hart::kStatusSize); ++i) {
    if (items->Item(i + 1).IsVariable()) reply[i] = 0;
  }
  return reply;
}

}  // namespace

std::optional<SimulatedLink::Reply> EchoLink::Answer(const Exchange& exchange) {
  return EchoOf(exchange);
}

std::uint8_t EchoLink::DeviceStatus(const Exchange& exchange) const {
  return EchoOf(exchange)[1];
}

}  // namespace HartLinkSim
