#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "links/ServerConnection.h"
#include "platform/Export.h"
#include "platform/Sockets.h"

namespace HartLinks {

// Where a HART-IP server listens and whom it serves.
struct HartIpServerOptions {
  platform::SocketAddress local;  // port 0: any free one, the same for both transports
  // The transports that it listens on.
  bool udp = true;
  bool tcp = true;
  // A connection without a session for so long is closed.
  platform::Milliseconds connectTime{10'000};
  HartIpServiceOptions service;
};

// A HART-IP server in the message loop of its thread, from construction to destruction. What a
// client does ends its own session or connection and nothing else.
class ZAF_API HartIpServer {
 public:
  // Raises DeviceIo when the port cannot be had.
  HartIpServer(FrameAnswerer answerer, const HartIpServerOptions& options);
  ~HartIpServer();
  HartIpServer(const HartIpServer&) = delete;
  HartIpServer& operator=(const HartIpServer&) = delete;

  // Where it listens.
  const platform::SocketAddress& Address() const { return address_; }
  // Tells who has a session.
  const HartIpService& Service() const { return service_; }

 private:
  class Datagrams;  // a client over UDP
  // A client over TCP; the timer ends one that makes no session.
  struct Connected {
    std::shared_ptr<ServerConnection> connection;
    platform::Subscription waiting;
  };

  void Bind();
  bool TryBind();
  void ReceiveDatagram();
  void Accept();
  void Drop(const std::shared_ptr<ServerConnection>& connection);

  HartIpServerOptions options_;
  HartIpService service_;
  platform::SocketAddress address_;
  std::shared_ptr<platform::UdpSocket> udp_;
  std::optional<platform::TcpListener> tcp_;
  std::vector<Connected> connections_;
  platform::Subscription udpReadable_;
  platform::Subscription tcpReadable_;
};

}  // namespace HartLinks
