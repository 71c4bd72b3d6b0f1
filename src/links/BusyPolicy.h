#pragma once

#include <cstdint>

#include "platform/Clock.h"

namespace HartLinks {

// Whether and how often a link asks a busy device again before it hands the reply over. Off by
// default: the caller then sees every such reply.
struct BusyPolicy {
  int attempts = 0;                   // times that a request is asked again; 0: off
  platform::Milliseconds delay{500};  // from a busy reply until the request is asked again

  bool IsOn() const { return attempts > 0; }
};

// Response codes (HART command summary) of a device that may carry the command out when it is asked
// again: 32 busy, 33 delayed response initiated, 34 delayed response running. With 35 (dead) and 36
// (conflict) it has given up.
constexpr bool IsBusy(std::uint8_t responseCode) {
  return responseCode >= 32 && responseCode <= 34;
}

}  // namespace HartLinks
