#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/Export.h"

namespace platform {

// An IPv4 or IPv6 address and a port.
struct ZAF_API SocketAddress {
  bool isV6 = false;
  std::array<std::uint8_t, 16> address{};  // IPv4: the first four
  std::uint32_t scope = 0;                 // interface of an IPv6 link-local address
  std::uint16_t port = 0;                  // in the byte order of the host

  // The 4 or 16 bytes of the address.
  std::span<const std::uint8_t> Bytes() const {
    return std::span<const std::uint8_t>(address).first(isV6 ? 16 : 4);
  }
  // "192.0.2.1:5094", "[2001:db8::1]:5094".
  std::string Text() const;

  friend bool operator==(const SocketAddress&, const SocketAddress&) = default;
};

// The address that "192.0.2.1", "::1" or "fe80::1%eth0" stands for; nothing for a name.
ZAF_API std::optional<SocketAddress> NumericAddress(const std::string& host, std::uint16_t port);

// The addresses of a name, numeric ones too, in the order in which they are to be tried. Blocks as
// long as the system's name resolution does; may be called on any thread. Raises DeviceIo with the
// reason when there is none.
ZAF_API std::vector<SocketAddress> ResolveName(const std::string& host, std::uint16_t port);

}  // namespace platform
