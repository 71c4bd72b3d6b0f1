#include "platform/Guid.h"

#include <cstring>

namespace platform {

Guid CreateGuid(RandomSource& random) {
  Guid guid;
  const std::array<std::uint64_t, 2> bits{random.Bits(), random.Bits()};
  std::memcpy(guid.bytes.data(), bits.data(), guid.bytes.size());
  guid.bytes[6] = static_cast<std::uint8_t>((guid.bytes[6] & 0x0F) | 0x40);  // version 4: random
  guid.bytes[8] = static_cast<std::uint8_t>((guid.bytes[8] & 0x3F) | 0x80);  // variant 1
  return guid;
}

std::string RegistryForm(const Guid& guid) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text = "{";
  for (std::size_t i = 0; i < guid.bytes.size(); ++i) {
    if (i == 4 || i == 6 || i == 8 || i == 10) text += '-';
    text += kDigits[guid.bytes[i] >> 4];
    text += kDigits[guid.bytes[i] & 0x0F];
  }
  return text + "}";
}

}  // namespace platform
