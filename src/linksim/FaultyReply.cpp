#include "linksim/FaultyReply.h"

#include <algorithm>

#include "ddobjects/Transaction.h"
#include "hart/StatusBytes.h"

namespace HartLinkSim {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::Exchange;
using Reply = std::vector<std::uint8_t>;

namespace {

// What an overlong reply has at its end.
constexpr std::size_t kSurplusBytes = 4;
constexpr std::uint8_t kSurplusByte = 0xA5;

// The device does not carry the command out. What a code means, the command's definition says
// first.
bool IsRefusal(const Exchange& exchange, std::uint8_t responseCode) {
  if (exchange.ItemsOf()) {
    if (const auto* code = exchange.ItemsOf()->ResponseCodes().Find(responseCode)) {
      return IsError(code->CodeType());
    }
  }
  return !hart::IsCarriedOut(responseCode);
}

void Deform(Reply& reply, const ActiveFaults& faults) {
  if (faults.corrupt) {
    std::for_each(reply.begin() + hart::kStatusSize, reply.end(),
                  [](std::uint8_t& byte) { byte = static_cast<std::uint8_t>(~byte); });
  }
  if (faults.truncated) reply.pop_back();
  if (faults.overlong) reply.insert(reply.end(), kSurplusBytes, kSurplusByte);
}

}  // namespace

std::optional<Reply> FaultyReply(const Exchange& exchange, const ActiveFaults& faults,
                                 const Answerer& answerer) {
  if (faults.noReply) return std::nullopt;
  std::optional<Reply> reply;
  if (faults.communicationError != 0) {
    reply = Reply{faults.communicationError, answerer.deviceStatus()};
  } else if (faults.response != 0 && IsRefusal(exchange, faults.response)) {
    reply = Reply{faults.response, answerer.deviceStatus()};
  } else {
    reply = answerer.answer();
    if (reply && faults.response != 0) reply->front() = faults.response;
  }
  if (!reply) return std::nullopt;
  reply->at(1) |= faults.deviceStatus;
  Deform(*reply, faults);
  return reply;
}

}  // namespace HartLinkSim
