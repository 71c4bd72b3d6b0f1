#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "interfaces/ILink.h"
#include "linksim/Faults.h"

namespace HartLinkSim {

// What carries commands out, where faults come in between.
struct Answerer {
  // The reply from the response code byte on, at least the two status bytes; nothing for none.
  std::function<std::optional<std::vector<std::uint8_t>>()> answer;
  // The device status byte of a reply to a command that is not carried out.
  std::function<std::uint8_t()> deviceStatus;
};

// The reply to an exchange that suffers the faults; nothing when none comes. Latency, the command's
// number and the check byte are the caller's.
std::optional<std::vector<std::uint8_t>> FaultyReply(const ZAFHartTypes::Exchange& exchange,
                                                     const ActiveFaults& faults,
                                                     const Answerer& answerer);

}  // namespace HartLinkSim
