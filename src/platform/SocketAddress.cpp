#include "platform/SocketAddress.h"

#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <algorithm>
#include <memory>

#include "platform/Failure.h"
#include "platform/NativeAddress.h"

namespace platform {
namespace {

struct ListFree {
  void operator()(addrinfo* list) const { freeaddrinfo(list); }
};
using AddressList = std::unique_ptr<addrinfo, ListFree>;

// The system's answer, or the reason why there is none.
AddressList LookUp(const std::string& host, int flags, std::string* reason) {
  addrinfo hints{};
  hints.ai_family = AF_UNSPEC;
  hints.ai_socktype = SOCK_STREAM;  // one entry per address
  hints.ai_flags = flags;
  addrinfo* list = nullptr;
  const int error = getaddrinfo(host.c_str(), nullptr, &hints, &list);
  if (error != 0 && reason) *reason = gai_strerror(error);
  return AddressList(error == 0 ? list : nullptr);
}

std::vector<SocketAddress> Addresses(const AddressList& list, std::uint16_t port) {
  std::vector<SocketAddress> addresses;
  for (const addrinfo* entry = list.get(); entry; entry = entry->ai_next) {
    if (auto address = FromNative(entry->ai_addr)) {
      address->port = port;
      addresses.push_back(*address);
    }
  }
  return addresses;
}

}  // namespace

NativeAddress::NativeAddress(const SocketAddress& from) {
  if (from.isV6) {
    auto* native = reinterpret_cast<sockaddr_in6*>(&storage);
    native->sin6_family = AF_INET6;
    native->sin6_port = htons(from.port);
    native->sin6_scope_id = from.scope;
    std::copy(from.address.begin(), from.address.end(), native->sin6_addr.s6_addr);
    size = sizeof(sockaddr_in6);
  } else {
    auto* native = reinterpret_cast<sockaddr_in*>(&storage);
    native->sin_family = AF_INET;
    native->sin_port = htons(from.port);
    std::copy_n(from.address.begin(), 4, reinterpret_cast<std::uint8_t*>(&native->sin_addr));
    size = sizeof(sockaddr_in);
  }
}

std::optional<SocketAddress> FromNative(const sockaddr* native) {
  SocketAddress address;
  if (native->sa_family == AF_INET) {
    const auto* v4 = reinterpret_cast<const sockaddr_in*>(native);
    address.port = ntohs(v4->sin_port);
    std::copy_n(reinterpret_cast<const std::uint8_t*>(&v4->sin_addr), 4, address.address.begin());
    return address;
  }
  if (native->sa_family != AF_INET6) return std::nullopt;
  const auto* v6 = reinterpret_cast<const sockaddr_in6*>(native);
  address.isV6 = true;
  address.port = ntohs(v6->sin6_port);
  address.scope = v6->sin6_scope_id;
  std::copy_n(v6->sin6_addr.s6_addr, 16, address.address.begin());
  return address;
}

std::string SocketAddress::Text() const {
  const NativeAddress native(*this);
  std::array<char, NI_MAXHOST> host{};
  getnameinfo(native.Get(), native.size, host.data(), host.size(), nullptr, 0, NI_NUMERICHOST);
  const std::string text = isV6 ? "[" + std::string(host.data()) + "]" : host.data();
  return text + ":" + std::to_string(port);
}

std::optional<SocketAddress> NumericAddress(const std::string& host, std::uint16_t port) {
  const auto addresses = Addresses(LookUp(host, AI_NUMERICHOST, nullptr), port);
  if (addresses.empty()) return std::nullopt;
  return addresses.front();
}

std::vector<SocketAddress> ResolveName(const std::string& host, std::uint16_t port) {
  std::string reason = "it has no address";
  auto addresses = Addresses(LookUp(host, AI_ADDRCONFIG, &reason), port);
  if (addresses.empty()) {
    throw Failure(ErrorNumber::DeviceIo, "platform.ResolveName",
                  "Cannot find the host " + host + ": " + reason);
  }
  return addresses;
}

}  // namespace platform
