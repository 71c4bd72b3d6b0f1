#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "links/HartIpService.h"
#include "platform/Sockets.h"

namespace HartLinks {

// A client of a server over TCP. Reads as long as it is there; writes what the client takes.
class ServerConnection : public HartIpService::Client,
                         public std::enable_shared_from_this<ServerConnection> {
 public:
  // One message, good or not, and the end of the connection.
  using Received = std::function<void(const std::shared_ptr<ServerConnection>&,
                                      const ZAFHartTypes::hart::DecodedHartIp&)>;
  using Closed = std::function<void(const std::shared_ptr<ServerConnection>&)>;

  // Both are called from the message loop; `closed` once, and nothing after it. The connection is
  // held by a std::shared_ptr.
  ServerConnection(platform::TcpSocket socket, const platform::SocketAddress& peer,
                   Received received, Closed closed);

  const std::string& Name() const override { return name_; }
  // A client that leaves too much unread is cut off.
  void Send(ZAFHartTypes::hart::Bytes message) override;
  void HangUp() override;

 private:
  void Receive();
  void Take(ZAFHartTypes::hart::Bytes bytes);
  void Flush();
  // What fails closes the connection.
  template <typename Action>
  void Guard(Action&& action) {
    try {
      action();
    } catch (const platform::Failure&) {
      Close();
    }
  }
  void Close();

  platform::TcpSocket socket_;
  std::string name_;
  Received received_;
  Closed closed_;
  ZAFHartTypes::hart::HartIpStream stream_;
  std::vector<std::uint8_t> unsent_;
  bool isEnding_ = false;  // closes when all is sent
  platform::Subscription readable_;
  platform::Subscription writable_;  // while unsent_ waits
  platform::Subscription closing_;
};

}  // namespace HartLinks
