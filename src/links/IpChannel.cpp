#include "links/IpChannel.h"

#include "links/SocketChannel.h"

namespace HartLinks {

std::string HartIpServerName::Text() const {
  const bool isV6 = host.find(':') != std::string::npos;
  return (isV6 ? "[" + host + "]" : host) + ":" + std::to_string(port) +
         (transport == Transport::Udp ? "/udp" : "/tcp");
}

IpChannel::~IpChannel() = default;

IpChannelOpener SocketChannels(std::shared_ptr<IPacketObserver> observer) {
  return [observer = std::move(observer)](const HartIpServerName& server, std::size_t attempt,
                                          IpChannel::User& user) -> std::unique_ptr<IpChannel> {
    if (server.transport == Transport::Udp) {
      return std::make_unique<UdpChannel>(server, attempt, observer, user);
    }
    return std::make_unique<TcpChannel>(server, attempt, observer, user);
  };
}

}  // namespace HartLinks
