#pragma once

#include <array>
#include <map>

#include "hart/LinkFrame.h"

namespace HartLinks {

// How many preambles the devices on a line have asked for in their identity (replies to commands 0,
// 11, 21, 73 and 75).
class PreambleCounts {
 public:
  static constexpr int kLeast = 5;  // that a master sends

  // The most for polling addresses, because another device may have come there, and for devices
  // that have not been identified.
  int For(const ZAFHartTypes::hart::LinkAddress& address) const;
  // Takes the count of a reply with an identity; leaves other frames alone.
  void Learn(const ZAFHartTypes::hart::LinkFrame& reply);

 private:
  std::map<std::array<std::uint8_t, 5>, int> counts_;  // by unique address
};

}  // namespace HartLinks
