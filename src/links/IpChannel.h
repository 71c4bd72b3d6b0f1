#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "hart/HartIpMessage.h"
#include "links/PacketObserver.h"

namespace HartLinks {

// Where a HART-IP server is.
struct HartIpServerName {
  std::string host;  // name or numeric address
  std::uint16_t port = ZAFHartTypes::hart::kHartIpPort;
  Transport transport = Transport::Udp;

  // For messages: "gateway.example:5094/udp".
  std::string Text() const;
};

// The way to a server, as a session sees it; the tests' stand in for a socket.
class IpChannel {
 public:
  // Every call comes from the message loop, none from inside a call of the channel. The user may
  // destroy the channel in it.
  class User {
   public:
    // From now on messages can be sent.
    virtual void OnOpen() = 0;
    // One datagram; of a TCP connection, bytes as they came.
    virtual void OnReceive(ZAFHartTypes::hart::Bytes bytes) = 0;
    // It could not be opened, or is lost: nothing more comes. The reason is for users.
    virtual void OnLost(const std::string& reason) = 0;

   protected:
    ~User() = default;
  };

  virtual ~IpChannel();
  // REQUIRES: open.
  virtual void Send(ZAFHartTypes::hart::Bytes message) = 0;
};

// Starts to open a channel. `attempt` counts those that got no session since the last one: a host
// of several addresses is tried at another one each time.
using IpChannelOpener = std::function<std::unique_ptr<IpChannel>(
    const HartIpServerName& server, std::size_t attempt, IpChannel::User& user)>;

// Channels over sockets, reported to the observer (may be nothing).
IpChannelOpener SocketChannels(std::shared_ptr<IPacketObserver> observer);

}  // namespace HartLinks
