#pragma once

#include <array>
#include <cstdint>

#include "ddobjects/ByteBuffer.h"
#include "interfaces/Codes.h"

namespace ZAFHartLib {

// Which bits of a status byte end a method, and which have the command sent again.
struct MaskPair {
  std::uint8_t abort = 0;  // bits that end the method
  std::uint8_t retry = 0;  // bits that have the command sent again

  // Another code of handling changes nothing.
  void Apply(std::uint8_t mask, ZAFHartTypes::StatusHandling handling);
};

// The masks of the three status bytes of a command.
class StatusMasks {
 public:
  using StatusByte = ZAFHartTypes::StatusByte;

  MaskPair& operator[](StatusByte byte) { return pairs_[static_cast<std::size_t>(byte)]; }
  // Some byte has a bit of its mask. `status` holds the three bytes; SubscriptOutOfRange for fewer.
  bool Aborts(const ZAFHartTypes::ByteBuffer& status) const {
    return Meets(status, &MaskPair::abort);
  }
  bool Retries(const ZAFHartTypes::ByteBuffer& status) const {
    return Meets(status, &MaskPair::retry);
  }

 private:
  bool Meets(const ZAFHartTypes::ByteBuffer& status, std::uint8_t MaskPair::*mask) const;

  std::array<MaskPair, 3> pairs_{{{0x50, 0x00}, {0x80, 0xFF}, {0x80, 0x00}}};
};

}  // namespace ZAFHartLib
