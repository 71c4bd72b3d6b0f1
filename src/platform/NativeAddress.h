#pragma once

#include <sys/socket.h>

#include <optional>

#include "platform/SocketAddress.h"

// For the sources of this room that call the system's sockets.
namespace platform {

struct NativeAddress {
  NativeAddress() = default;  // room for an address that the system fills in
  explicit NativeAddress(const SocketAddress& from);

  const sockaddr* Get() const { return reinterpret_cast<const sockaddr*>(&storage); }
  sockaddr* Get() { return reinterpret_cast<sockaddr*>(&storage); }

  sockaddr_storage storage{};
  socklen_t size = sizeof(sockaddr_storage);
};

// Nothing for an address that is neither IPv4 nor IPv6.
std::optional<SocketAddress> FromNative(const sockaddr* native);

}  // namespace platform
